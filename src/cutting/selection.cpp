// SPDX-License-Identifier: MIT
#include "cutting/selection.h"

#include "entry/vocabulary.h"

#include <algorithm>

quint8 SelNum23 = 0;
quint8 SelNumType = 0;
bool SelUpDown = false;
QString SelNumValue;
bool MemberFilterOn = false;

int selectedClass()
{
    const auto found =
        std::find_if(BetClasses.begin(), BetClasses.end(), [](const BetClass &betClass) {
            return betClass.num23 == SelNum23 && betClass.numType == SelNumType
                   && betClass.updown == SelUpDown;
        });
    return found == BetClasses.end() ? -1 : int(found - BetClasses.begin());
}
