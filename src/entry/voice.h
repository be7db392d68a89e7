// SPDX-License-Identifier: MIT
// The keys of bet entry: those that are spoken, so that the user need not look at the screen, and
// those that choose the kind of bet.
#pragma once

#include "desktop/mediacontrol.h"
#include "entry/vocabulary.h"

#include <array>

/// The codes of two keys with the same effect, as from keyCode(): they depend neither on the layout
/// nor on Shift. 0 means no key.
using KeyCodes = std::array<int, 2>;

/// Keys that are spoken, and their recording in data/mp3.
struct EchoKey
{
    KeyCodes codes{};
    const char *file = nullptr;
};

/// The digits and the dash, on the main keyboard and on the keypad.
inline constexpr std::array<EchoKey, 11> EchoKeys{{
    {{49, 97}, "1.mp3"},
    {{50, 98}, "2.mp3"},
    {{51, 99}, "3.mp3"},
    {{52, 100}, "4.mp3"},
    {{53, 101}, "5.mp3"},
    {{54, 102}, "6.mp3"},
    {{55, 103}, "7.mp3"},
    {{56, 104}, "8.mp3"},
    {{57, 105}, "9.mp3"},
    {{48, 96}, "0.mp3"},
    {{109, 189}, "money.mp3"},
}};

/// Keys that choose a kind, and their recording in data/mp3.
struct KindKey
{
    KeyCodes codes{};
    std::array<const char *, 2> keys{}; ///< labels of the keys in KeyboardPicture
    const char *file = nullptr;
    BetKind kind{};
};

inline constexpr std::array KindKeys{
    KindKey{{112, 38}, {"F1", "↑"}, "up.mp3", BetKind::Top},
    KindKey{{113, 37}, {"F2", "←"}, "runup.mp3", BetKind::RunTop},
    KindKey{{117, 39}, {"F6", "→"}, "rundown.mp3", BetKind::RunBottom},
    KindKey{{116, 40}, {"F5", "↓"}, "down.mp3", BetKind::Bottom},
    KindKey{{17, 35}, {"Ctrl", "End"}, "tod.mp3", BetKind::TodKind},
    KindKey{{114, 33}, {"F3", "PgUp"}, "kup.mp3", BetKind::TurnTop},
    KindKey{{118, 34}, {"F7", "PgDn"}, "kdown.mp3", BetKind::TurnBottom},
    KindKey{{120, 46}, {"F9", "Delete"}, "tongtod.mp3", BetKind::StraightAndTod},
    KindKey{{121, 36}, {"F10", "Home"}, "updown.mp3", BetKind::TopAndBottom},
    KindKey{{115, 0}, {"F4", nullptr}, "19up.mp3", BetKind::DoorsTop},
    KindKey{{119, 0}, {"F8", nullptr}, "19down.mp3", BetKind::DoorsBottom},
    KindKey{{122, 0}, {"F11", nullptr}, "0099up.mp3", BetKind::SweepTop},
    KindKey{{123, 0}, {"F12", nullptr}, "0099down.mp3", BetKind::SweepBottom},
};

/// Returns the entry of EchoKeys or KindKeys that has @p code, or nullptr.
template<typename Keys>
constexpr auto findKey(const Keys &keys, int code) -> decltype(keys.data())
{
    for (const auto &key : keys) {
        if (code != 0 && (key.codes[0] == code || key.codes[1] == code))
            return &key;
    }
    return nullptr;
}

/// Plays @p file from data/mp3, after stopping the recording before it. Returns at once.
void ReadKey(MediaControl &player, const char *file);
