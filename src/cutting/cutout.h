// SPDX-License-Identifier: MIT
// The cut: money of one bet line is laid off, out of the book and into the cut numbers.
#pragma once

#include "widgets/spreadmodel.h"

/// Columns of the list of lines. Those that are not shown name the line in the Ledger.
namespace CutColumn {
inline constexpr int Key = 0; ///< NPK
inline constexpr int Place = 1;
inline constexpr int Customer = 2;
inline constexpr int Label = 3;
inline constexpr int Number = 4;
inline constexpr int Amount = 5;
inline constexpr int Buyer = 6; ///< nameFK
inline constexpr int User = 7;  ///< nuser
} // namespace CutColumn

/// One bet line as a row of the list holds it.
struct CutLine
{
    qint32 NPK;
    qint32 nameFK;
    QString nuser;
    qint32 amount; ///< whole baht
};

/// The single lines behind the selected number, of all customers, and what can be done to them.
class CutOut
{
public:
    CutOut();

    SpreadModel grid; ///< its rows are told when they are looked at

    /// Lists the lines, the biggest first, with their sum in the header. Raises "Overflow" when
    /// that leaves 32 bits, "Invalid use of Null" for a line without money.
    void LoadNumrunup();

    /// The line in a row. Raises "Type mismatch" for one without money.
    CutLine lineAt(int row) const;

    /// Moves @p amount, at most the line's own, from tblNumber to tblNumberCut, first out of the
    /// one and then into the other. What takes the whole line removes it.
    void cut(const CutLine &line, qint32 amount);

    /// Takes the line in a row out of the book for good, also one without money.
    void remove(int row) const;

private:
    void SetupSpread();
    void SetupNewData8();

    qint32 NextCutKey = 0;
};
