// SPDX-License-Identifier: MIT
// How the Ledger compares texts. Statements name these collations, tables do not, so that a
// stock tool of the engine can read and mend the file.
#pragma once

#include <QStringView>

/// Name of the collation for tests of equality: letters without regard to case.
inline constexpr const char *AnyCaseCollation = "AnyCase";

/// Name of the collation for lists of names: the order of a Thai dictionary, in which a leading
/// vowel sorts behind its consonant.
inline constexpr const char *ThaiCollation = "ThaiOrder";

/// Below, equal to or above 0 as @p left stands before, with or behind @p right.
int compareAnyCase(QStringView left, QStringView right);
int compareThai(QStringView left, QStringView right);
