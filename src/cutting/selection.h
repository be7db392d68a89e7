// SPDX-License-Identifier: MIT
// The selected class and number, which a grid sets before it opens the cut-out dialog.
#pragma once

#include <QString>

extern quint8 SelNum23;
extern quint8 SelNumType;
extern bool SelUpDown; ///< also decides which tab the board shows after loading
extern QString SelNumValue;

/// True from filtering the board to one customer until F5 there. Stays true when a cut shows the
/// whole book again, so that F5 still works.
extern bool MemberFilterOn;

/// Returns the index of the selected class in BetClasses, or -1 for a combination that is no class.
int selectedClass();
