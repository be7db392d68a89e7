// SPDX-License-Identifier: MIT
// The payout rates as the settings show and store them: one field for each class of bet.
#pragma once

#include <QString>

#include <array>
#include <optional>

/// A field of the dialog and the column of tblMoney that it shows.
struct RateField
{
    const char *field;
    const char *column;
};

/// In the order in which Enter walks through them.
inline constexpr std::array RateFields{
    RateField{"text1", "3up"},   RateField{"text3", "3tod"},    RateField{"text2", "2up"},
    RateField{"text4", "2tod"},  RateField{"text5", "runup"},   RateField{"text6", "3down"},
    RateField{"text7", "2down"}, RateField{"text8", "rundown"},
};

/// Texts of the eight rates in the order of RateFields.
using RateTexts = std::array<QString, RateFields.size()>;

/// The rates as stored; nothing without their row. Uses RecordsetA.
std::optional<RateTexts> readRates();

/// Stores the rates. Raises "Type mismatch" for a text that is no number, "Overflow" beyond 16
/// bits, before anything is written. Uses RecordsetA.
void writeRates(const RateTexts &rates);
