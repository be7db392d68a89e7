// SPDX-License-Identifier: MIT
// The cut: moves money of one bet line from the book to the cut numbers.
#pragma once

#include "widgets/spreadmodel.h"

/// Columns of the list of lines. Key, Buyer and User are hidden: NPK, nameFK and nuser of the line.
namespace CutColumn {
inline constexpr int Key = 0;
inline constexpr int Place = 1; ///< row number
inline constexpr int Customer = 2;
inline constexpr int Label = 3;
inline constexpr int Number = 4;
inline constexpr int Amount = 5;
inline constexpr int Buyer = 6;
inline constexpr int User = 7;
} // namespace CutColumn

/// One bet line, read from a row of the list.
struct CutLine
{
    qint32 NPK;
    qint32 nameFK;
    QString nuser;
    qint32 amount; ///< whole baht
};

/// The bet lines of the selected number, of all customers, and the changes to them. Lines whose
/// customer is missing in tblMember are left out.
class CutOut
{
public:
    CutOut();

    SpreadModel grid;

    /// Lists the lines, largest amount first, with their sum in the header. Throws "Overflow" when
    /// the sum exceeds 32 bits and "Invalid use of Null" for a line whose amount is NULL; the list
    /// is then empty.
    void LoadNumrunup();

    /// Returns the line in a row. Throws "Type mismatch" if its amount is 0, which is shown as "".
    CutLine lineAt(int row) const;

    /// Moves @p amount, at most the amount of the line, from tblNumber to tblNumberCut: first
    /// reduces the line, or deletes it if nothing is left, then adds the cut line.
    void cut(const CutLine &line, qint32 amount);

    /// Deletes the line in a row from the book, also one with the amount 0.
    void remove(int row) const;

private:
    void SetupSpread();
    void SetupNewData8();

    qint32 NextCutKey = 0;
};
