// SPDX-License-Identifier: MIT
#include "widgets/narrowedfont.h"

#include <QFontMetrics>

#include <algorithm>

QFont narrowedFont(QFont font, const QString &text, int room)
{
    constexpr int Narrowest = 60; // percent
    const int width = QFontMetrics(font).horizontalAdvance(text);
    if (room > 0 && width > room)
        font.setStretch(std::max(Narrowest, (100 * room - width) / width));
    return font;
}
