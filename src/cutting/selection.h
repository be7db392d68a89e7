// SPDX-License-Identifier: MIT
// The class and number selected for the cut-out dialog. The board or the risk scan sets them before
// it opens the dialog.
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
