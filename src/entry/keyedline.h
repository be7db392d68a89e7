// SPDX-License-Identifier: MIT
// Splits a keyed line into its parts, and checks number and amount for the builders.
#pragma once

#include "entry/ticket.h"

/// The result of splitLine().
enum class LineForm {
    Good,
    NoKindChosen, ///< refused; the list of kinds should get the focus
    Refused       ///< refused; the text should stay in the field for correction
};

/// Checks the form of a line and splits it into KeyedNumber, KeyedAmount and, for a turned bet,
/// KeyedTryAmount of @p ticket. The parts are neither trimmed nor converted. Shows a box if the
/// line is refused.
LineForm splitLine(Ticket &ticket, const QString &text, BetKind kind);

/// Checks that a builder can require, in the order in which they run.
enum FieldCheck : unsigned {
    NumberGiven = 1U << 0,      ///< the number is not empty
    AtLeastTwoDigits = 1U << 1, ///< not exactly one character
    AtMostThreeDigits = 1U << 2,
    OneDigit = 1U << 3,      ///< at most one character
    DigitsDiffer = 1U << 4,  ///< not all digits are equal, since they would have only one order
    NoNumber = 1U << 5,      ///< the number is empty, since the kind has its own numbers
    AmountGood = 1U << 6,    ///< KeyedAmount is given, at least 1 baht, at most 5 characters
    TryAmountGood = 1U << 7, ///< the same for KeyedTryAmount
};

/// Runs the checks given as the bits of @p checks, with the spaces around each part removed. Shows
/// the box of the first check that fails and returns false. Throws "Type mismatch" for an amount
/// that is no number.
bool passesChecks(const Ticket &ticket, unsigned checks);
