// SPDX-License-Identifier: MIT
// Amounts and captions that must not be cut off where room is short.
#pragma once

#include <QFont>

/// @p font, narrowed so far that @p text fits into @p room pixels, to six tenths at most. An amount
/// that is cut off would read as another amount.
QFont narrowedFont(QFont font, const QString &text, int room);
