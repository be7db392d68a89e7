// SPDX-License-Identifier: MIT
// What the agent pays per baht staked, and whence a cut is made: the globals of the main window.
#pragma once

#include <QtGlobal>

/// Payout per 1 baht staked, by class of bet. Read by LoadMoney() and kept as they stood then.
extern qint16 Rate3up;
extern qint16 Rate3tod;
extern qint16 Rate2up;
extern qint16 Rate2tod;
extern qint16 Raterunup;
extern qint16 Rate3down;
extern qint16 Rate2down;
extern qint16 Raterundown;

/// The same by the place of a class in BetClasses.
qint16 classRate(int at);

/// Whence a cut is made. Set by the navigation and by the scan.
extern quint8 CutOrigin;
inline constexpr quint8 FromOtherPage = 0;
inline constexpr quint8 FromBoard = 1;
inline constexpr quint8 FromTopScan = 2;
inline constexpr quint8 FromBottomScan = 3;

/// Reads the eight rates from tblMoney. Without its one row they stay as they were. Raises
/// "Overflow" for a rate above 32,767.
void LoadMoney();
