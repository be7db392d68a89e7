// SPDX-License-Identifier: MIT
#include "cutting/selection.h"

#include "entry/vocabulary.h"

quint8 SelNum23 = 0;
quint8 SelNumType = 0;
bool SelUpDown = false;
QString SelNumValue;
bool MemberFilterOn = false;

int selectedClass()
{
    return classOf(SelNum23, SelUpDown, SelNumType);
}
