// SPDX-License-Identifier: MIT
// The words of the trade: the thirteen kinds that a keyed line can be, and the eight classes that
// the Ledger stores. Every screen takes its words from here.
#pragma once

#include <QString>
#include <QStringView>

#include <array>

/// A class of bet as the Ledger stores it. Grids, boards and rates stand in the order of
/// BetClasses everywhere.
struct BetClass
{
    int num23;   ///< digits of the number
    bool updown; ///< true = top (บน), false = bottom (ล่าง)
    int numType; ///< 1 straight (ตรง), 2 tod (โต๊ด), 3 run (วิ่ง)
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

/// Place of a class in BetClasses, or -1 for a combination that is no class.
int classOf(int num23, bool updown, int numType);

/// The first classes are the top ones, the rest bottom: the split of every tab strip.
inline constexpr int TopClassCount = 5;

/// What a keyed line is called. NoKind stands for the entry that asks for a kind and for the
/// separators of the list.
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

/// One entry of the list of kinds, with the caption that choosing it shows.
struct KindEntry
{
    BetKind kind;
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

/// Place of the entry of @p kind in KindEntries.
int placeOfKind(BetKind kind);

/// The kind that a caption names; the caption is the one place that holds the chosen kind.
BetKind kindOfCaption(const QString &caption);

/// What a class is called in a narrow column of a list of both sides, "ตรง-บน"; "" for a
/// combination that is no class. It does not tell the digits: the number beside it does.
QString twoPartLabel(int numType, bool updown);

/// The same where top and bottom stand in lists of their own, "ตรง", and back; 0 for another word.
QString oneWordLabel(int numType);
int numTypeOf(const QString &oneWord);

/// True for the kinds that also bet on the other orders of the digits; their lines carry two
/// amounts.
bool isTurnKind(BetKind kind);
