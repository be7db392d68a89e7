// SPDX-License-Identifier: MIT
// Every guarded number field of the program: its length, its filter and what Enter does in it.
#pragma once

#include <array>

enum class FieldFilter { Digits, Line };

/// What Enter does in a field, once the key itself is swallowed.
enum class FieldEnter {
    Stays,   ///< nothing more
    Focuses, ///< the focus goes to the control named by FieldRule::target
    Clicks,  ///< the button named by FieldRule::target is pressed
    Handled  ///< the form has a handler of its own
};

/// One guarded field. Names are those of the form and of the control within it.
struct FieldRule
{
    const char *form = nullptr;
    const char *field = nullptr;
    int longest = 0; ///< characters that can be typed; text set by code may be longer
    FieldEnter enter = FieldEnter::Stays;
    const char *target = nullptr;
    FieldFilter filter = FieldFilter::Digits;
    const char *movesOnTo = nullptr; ///< where any other key moves the focus, after the filter
};

/// The one digit boxes of the official result hand the focus on with each key, so that the
/// seventeen digits are typed in one run. Enter moves on too, but stops at the end of a prize.
constexpr FieldRule resultBox(const char *field, const char *next)
{
    return {"Form4", field, 1, FieldEnter::Focuses, next, FieldFilter::Digits, next};
}

constexpr FieldRule lastOfPrize(const char *field, const char *next)
{
    return {"Form4", field, 1, FieldEnter::Stays, nullptr, FieldFilter::Digits, next};
}

inline constexpr std::array FieldTable{
    FieldRule{"Form1", "Tnumber", 50, FieldEnter::Handled, nullptr, FieldFilter::Line},
    FieldRule{"Form2", "Tber", 10, FieldEnter::Focuses, "Tpercen"},
    FieldRule{"Form2", "Tpercen", 2, FieldEnter::Focuses, "Tname"},
    FieldRule{"Setting", "text1", 4, FieldEnter::Focuses, "text3"},
    FieldRule{"Setting", "text3", 4, FieldEnter::Focuses, "text2"},
    FieldRule{"Setting", "text2", 4, FieldEnter::Focuses, "text4"},
    FieldRule{"Setting", "text4", 4, FieldEnter::Focuses, "text5"},
    FieldRule{"Setting", "text5", 4, FieldEnter::Focuses, "text6"},
    FieldRule{"Setting", "text6", 4, FieldEnter::Focuses, "text7"},
    FieldRule{"Setting", "text7", 4, FieldEnter::Focuses, "text8"},
    FieldRule{"Setting", "text8", 4, FieldEnter::Stays},
    FieldRule{"Setting", "text9", 3, FieldEnter::Clicks, "lvButtons_H3"},
    FieldRule{"Form3", "text1", 3, FieldEnter::Clicks, "lvButtons_H3"},
    FieldRule{"CutNum", "text1", 5, FieldEnter::Clicks, "lvButtons_H3"},
    FieldRule{"Numcut", "text1", 3, FieldEnter::Clicks, "lvButtons_H3"},
    resultBox("text4", "text5"),
    resultBox("text5", "text6"),
    lastOfPrize("text6", "text8"),
    resultBox("text8", "text9"),
    resultBox("text9", "text10"),
    lastOfPrize("text10", "text11"),
    resultBox("text11", "text12"),
    resultBox("text12", "text13"),
    lastOfPrize("text13", "text14"),
    resultBox("text14", "text15"),
    resultBox("text15", "text16"),
    lastOfPrize("text16", "Text17"),
    resultBox("Text17", "Text18"),
    resultBox("Text18", "Text19"),
    lastOfPrize("Text19", "Text20"),
    resultBox("Text20", "Text21"),
    lastOfPrize("Text21", nullptr),
};
