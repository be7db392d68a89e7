// SPDX-License-Identifier: MIT
// Collations of the Ledger. Only statements name them, never tables, so that SQLCipher's own shell
// can read and repair the file.
#pragma once

#include <QStringView>

/// Name of the case-insensitive collation, which is for tests of equality.
inline constexpr const char *AnyCaseCollation = "AnyCase";

/// Name of the case-insensitive collation for lists of names. It has the order of a Thai
/// dictionary, in which a leading vowel sorts after its consonant.
inline constexpr const char *ThaiCollation = "ThaiOrder";

/// The comparisons of the two collations. They return a value less than, equal to or greater than 0
/// if @p left sorts before, equal to or after @p right.
int compareAnyCase(QStringView left, QStringView right);
int compareThai(QStringView left, QStringView right);
