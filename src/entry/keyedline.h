// SPDX-License-Identifier: MIT
// The keyed line: its form, its parts, and the checks of number and amount that the builders
// share.
#pragma once

#include "entry/ticket.h"

/// What became of a line at Enter, before any builder saw it.
enum class LineForm {
    Good,
    NoKindChosen, ///< refused; the keyer is to be sent to the list of kinds
    Refused       ///< refused; the text stays in the field for correction
};

/// Checks the form of a line and splits it into the ticket's Keyed parts. Shows its own
/// refusals. Nothing is trimmed or converted.
LineForm splitLine(Ticket &ticket, const QString &text, BetKind kind);

/// Checks of a builder, in the order in which they run.
enum FieldCheck : unsigned {
    NumberGiven = 1U << 0,      ///< the number is not empty
    AtLeastTwoDigits = 1U << 1, ///< not exactly one character
    AtMostThreeDigits = 1U << 2,
    OneDigit = 1U << 3,      ///< at most one character
    DigitsDiffer = 1U << 4,  ///< not all digits equal: such a number has only one order
    NoNumber = 1U << 5,      ///< the number stays empty: the kind brings its own
    AmountGood = 1U << 6,    ///< KeyedAmount: given, at least 1 baht, at most 5 characters
    TryAmountGood = 1U << 7, ///< the same of KeyedTryAmount
};

/// Runs the checks named by the bits of @p checks. The first that fails shows its box and gives
/// false. Blanks around a part are left out of account.
bool passesChecks(const Ticket &ticket, unsigned checks);
