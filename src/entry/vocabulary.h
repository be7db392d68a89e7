// SPDX-License-Identifier: MIT
// The words of the trade that several screens show: the thirteen kinds of a keyed line, and the
// eight classes of bets that the Ledger stores.
#pragma once

#include <QString>
#include <QStringView>

#include <array>

/// A class of bets as the Ledger stores it. Grids, boards and rates are always in the order of
/// BetClasses.
struct BetClass
{
    int num23 = 0;       ///< digits of the number
    bool updown = false; ///< true = top (บน), false = bottom (ล่าง)
    int numType = 0;     ///< 1 straight (ตรง), 2 tod (โต๊ด), 3 run (วิ่ง)
    QStringView caption;
};

inline constexpr int Straight = 1;
inline constexpr int Tod = 2;
inline constexpr int Run = 3;

inline constexpr std::array BetClasses{
    BetClass{3, true, Straight, u"3 ตัวตรง"},  BetClass{3, true, Tod, u"3 ตัวโต๊ด"},
    BetClass{2, true, Straight, u"2 ตัวตรง"},  BetClass{2, true, Tod, u"2 ตัวโต๊ด"},
    BetClass{1, true, Run, u"วิ่งบน"},          BetClass{3, false, Straight, u"3 ตัวล่าง"},
    BetClass{2, false, Straight, u"2 ตัวล่าง"}, BetClass{1, false, Run, u"วิ่งล่าง"},
};
inline constexpr int ClassCount = int(BetClasses.size());

/// Returns the index of a class in BetClasses, or -1 for a combination that is not a class.
int classOf(int num23, bool updown, int numType);

/// The first TopClassCount classes are on top, the others on the bottom; tab strips are split so.
inline constexpr int TopClassCount = 5;

/// The kind of a keyed line. NoKind is the kind of the entry that asks for one, and of the
/// separators in the list.
enum class BetKind {
    NoKind,
    Top,
    TodKind,
    Bottom,
    RunTop,
    RunBottom,
    TurnTop,
    TurnBottom,
    StraightAndTod,
    TopAndBottom,
    DoorsTop,
    SweepTop,
    DoorsBottom,
    SweepBottom,
};

/// An entry of the list of kinds, and the caption that Form1 shows when it is chosen.
struct KindEntry
{
    BetKind kind{};
    QStringView entry;
    QStringView caption;
};

inline constexpr QStringView NoKindCaption = u"ประเภท";
inline constexpr KindEntry KindSeparator{BetKind::NoKind, u"-----------------------------",
                                         NoKindCaption};

inline constexpr std::array KindEntries{
    KindEntry{BetKind::NoKind, u"- เลือกประเภท", NoKindCaption},
    KindEntry{BetKind::Top, u"- บน", u"บน"},
    KindEntry{BetKind::TodKind, u"- โต๊ด", u"โต๊ด"},
    KindEntry{BetKind::Bottom, u"- ล่าง", u"ล่าง"},
    KindEntry{BetKind::RunTop, u"- วิ่งบน", u"วิ่งบน"},
    KindEntry{BetKind::RunBottom, u"- วิ่งล่าง", u"วิ่งล่าง"},
    KindEntry{BetKind::TurnTop, u"- กลับบน", u"กลับบน"},
    KindEntry{BetKind::TurnBottom, u"- กลับล่าง", u"กลับล่าง"},
    KindSeparator,
    KindEntry{BetKind::StraightAndTod, u"- ตรง+โต๊ด", u"ตรง+โต๊ด"},
    KindEntry{BetKind::TopAndBottom, u"- บน+ล่าง", u"บน+ล่าง"},
    KindSeparator,
    KindEntry{BetKind::DoorsTop, u"- 19 ประตู (บน)", u"19 ประตู (บน)"},
    KindEntry{BetKind::SweepTop, u"- 00-99 (บน)", u"00-99 (บน)"},
    KindSeparator,
    KindEntry{BetKind::DoorsBottom, u"- 19 ประตู (ล่าง)", u"19 ประตู (ล่าง)"},
    KindEntry{BetKind::SweepBottom, u"- 00-99 (ล่าง)", u"00-99 (ล่าง)"},
};

/// Returns the index of the entry of @p kind in KindEntries.
int indexOfKind(BetKind kind);

/// Returns the kind of a caption, or NoKind. Form1 stores the chosen kind only as its caption.
BetKind kindOfCaption(const QString &caption);

/// Returns the short name of a class for a list of both sides, such as "ตรง-บน", or "" for a
/// combination that is not a class. The number beside it shows how many digits the class has.
QString twoPartLabel(int numType, bool updown);

/// Returns the short name for a list of one side, such as "ตรง".
QString oneWordLabel(int numType);

/// Returns the numType of a name from oneWordLabel(), or 0 for any other text.
int numTypeOf(const QString &oneWord);

/// Returns true for the kinds that also bet on the other orders of the digits. Their lines have two
/// amounts.
bool isTurnKind(BetKind kind);
