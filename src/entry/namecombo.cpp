// SPDX-License-Identifier: MIT
#include "entry/namecombo.h"

#include "desktop/keycodes.h"
#include "fields/filters.h"
#include "widgets/combo.h"

int nameKeyPress(Combo &combo, int code, const std::function<void()> &enter)
{
    constexpr qsizetype LongestName = 50;
    if (code == EnterCode) {
        enter();
        return 0;
    }
    return ComboAutoComplete(combo, MaxLengthFilter(combo.currentText().size(), LongestName, code));
}
