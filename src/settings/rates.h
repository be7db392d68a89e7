// SPDX-License-Identifier: MIT
// Reads and writes the payout rates as texts of the fields in the settings.
#pragma once

#include "ledger/schema.h"

#include <QString>

#include <array>
#include <optional>

/// The eight rates in the order of RateColumns.
using RateTexts = std::array<QString, RateColumns.size()>;

/// Reads the rates. Returns nothing if tblMoney lacks their row.
std::optional<RateTexts> readRates();

/// Writes the rates. Throws "Type mismatch" for a text that is no number and "Overflow" for a rate
/// beyond 16 bits; nothing is written then.
void writeRates(const RateTexts &rates);
