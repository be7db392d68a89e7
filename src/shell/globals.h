// SPDX-License-Identifier: MIT
// Global variables of the main window: the payout rates and the origin of a cut.
#pragma once

#include <QtGlobal>

/// Payout per 1 baht staked, by class of bet. Only LoadMoney() sets them.
extern qint16 Rate3up;
extern qint16 Rate3tod;
extern qint16 Rate2up;
extern qint16 Rate2tod;
extern qint16 Raterunup;
extern qint16 Rate3down;
extern qint16 Rate2down;
extern qint16 Raterundown;

/// Returns the payout of a class by its index in BetClasses.
qint16 classRate(int at);

/// Where a cut is started from: one of the values below. Set by the navigation and by the scan.
extern quint8 CutOrigin;
inline constexpr quint8 FromOtherPage = 0;
inline constexpr quint8 FromBoard = 1;
inline constexpr quint8 FromTopScan = 2;
inline constexpr quint8 FromBottomScan = 3;

/// Reads the eight rates from tblMoney. Without its row they stay unchanged. Throws "Overflow" for
/// a rate above 32,767 and "Invalid use of Null" for a missing one.
void LoadMoney();
