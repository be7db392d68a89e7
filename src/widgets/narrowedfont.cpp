// SPDX-License-Identifier: MIT
#include "widgets/narrowedfont.h"

#include <QFontMetrics>

#include <algorithm>

QFont narrowedFont(QFont font, const QString &text, int maxWidth)
{
    constexpr int MinStretch = 60; // percent
    const int width = QFontMetrics(font).horizontalAdvance(text);
    if (maxWidth > 0 && width > maxWidth)
        font.setStretch(std::max(MinStretch, (100 * maxWidth - width) / width));
    return font;
}
