// SPDX-License-Identifier: MIT
// What is being cut: a class and a number, handed from a grid to the cut-out.
#pragma once

#include <QString>

extern quint8 SelNum23;
extern quint8 SelNumType;
extern bool SelUpDown; ///< also says on which tab the board ends its load
extern QString SelNumValue;

/// True once the board was filtered to one customer, until F5 there. A cut brings the whole book back
/// to the screen and leaves this as it is: F5 still works then.
extern bool MemberFilterOn;

/// Place of the selected class in BetClasses, or -1 for a combination that is no class.
int selectedClass();
