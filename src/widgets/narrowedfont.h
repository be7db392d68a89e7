// SPDX-License-Identifier: MIT
// Narrower fonts for amounts and captions that must not be cut off.
#pragma once

#include <QFont>

/// Returns @p font, narrowed as far as needed for @p text to fit into @p maxWidth pixels, but not
/// below 60 percent. An amount that is cut off would read as a different amount.
QFont narrowedFont(QFont font, const QString &text, int maxWidth);
