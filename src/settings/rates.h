// SPDX-License-Identifier: MIT
// The payout rates as the settings show and store them: one field for each class of bet.
#pragma once

#include "ledger/schema.h"

#include <optional>

/// Texts of the eight rates in the order of RateColumns.
using RateTexts = std::array<QString, RateColumns.size()>;

/// The rates as stored; nothing without their row.
std::optional<RateTexts> readRates();

/// Stores the rates. Raises "Type mismatch" for a text that is no number, "Overflow" beyond 16
/// bits, before anything is written.
void writeRates(const RateTexts &rates);
