// SPDX-License-Identifier: MIT
#include "cutting/cutout.h"

#include "cutting/selection.h"
#include "entry/vocabulary.h"
#include "ledger/ledger.h"
#include "runtime/values.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr int SumRow = FirstHeaderRow;
constexpr int ColumnTitleRow = FirstHeaderRow + 1;

constexpr std::array Columns{
    GridColumn{CutColumn::Place, u"ลำดับ"},
    GridColumn{CutColumn::Customer, u" ชื่อลูกค้า", Qt::AlignLeft, Qt::AlignHCenter},
    GridColumn{CutColumn::Label, u"ประเภท"},
    GridColumn{CutColumn::Number, u"เลข"},
    GridColumn{CutColumn::Amount, u"ยอดซื้อ", Qt::AlignRight, Qt::AlignHCenter},
};

/// Columns of the SELECT statement in LoadNumrunup().
enum class Read { Key, Name, Buyer, Money, User };

const QVariant &field(const QVariantList &line, Read place)
{
    return line[qsizetype(place)];
}

/// Deletes a line from the book. NPK alone identifies it; like all statements that change a line,
/// this one compares its user too.
void removeLine(qint32 NPK, const QString &nuser)
{
    LedgerConnection->run(u"DELETE FROM tblNumber WHERE [NPK] = ? AND [nUser] LIKE ?"_s,
                          {NPK, trimBlanks(nuser)});
}

/// Reduces the amount of a line that stays in the book.
void takeOff(const CutLine &line, qint32 amount)
{
    RecordsetA.open(u" SELECT tblNumber.numbuy FROM tblNumber WHERE [NPK] = ? AND [nUser] LIKE ?"_s,
                    {line.NPK, trimBlanks(line.nuser)});
    const qint32 rest = CLng(numberOf(RecordsetA.field(u"numbuy"_s)) - amount);
    RecordsetA.close();
    LedgerConnection->run(u"UPDATE tblNumber SET numbuy = ? WHERE [NPK] = ? AND [nUser] LIKE ?"_s,
                          {rest, line.NPK, trimBlanks(line.nuser)});
}

} // namespace

CutOut::CutOut()
{
    SetupSpread();
}

void CutOut::SetupSpread()
{
    const SpreadModel::Rebuild rebuild(grid);
    grid.setup(CutColumn::User, 2);
    grid.setHeader(SumRow, CutColumn::Number, {.text = u"ยอดรวม"_s, .bold = true});
    grid.setHeader(SumRow, CutColumn::Amount,
                   {.alignment = Qt::AlignRight | Qt::AlignVCenter, .bold = true});
    grid.setTitles(ColumnTitleRow, Columns);
}

void CutOut::LoadNumrunup()
{
    const SpreadModel::Rebuild rebuild(grid);
    SetupSpread();
    RecordsetA.open(u"SELECT tblNumber.NPK, tblMember.Mname, tblNumber.nameFK, tblNumber.numBuy,"
                    " tblNumber.nuser"
                    " FROM tblNumber INNER JOIN tblMember ON tblNumber.nameFK = tblMember.MPK"
                    " WHERE [num23] = ? AND [numType] = ? AND [updown] = ? AND [numValue] = ?"
                    " ORDER BY numBuy DESC, NPK"_s,
                    {SelNum23, SelNumType, SelUpDown, trimBlanks(SelNumValue)});
    const QList<QVariantList> lines = RecordsetA.takeRows();
    if (lines.isEmpty())
        return;
    qint32 CutTotal = 0; // Sum first: a NULL amount must throw before any row is shown.
    for (const QVariantList &line : lines)
        CutTotal = addLong({CutTotal, CLng(numberOf(field(line, Read::Money)))});
    grid.setRows(int(lines.size()));
    std::array<QString, CutColumn::User + 1> texts;
    texts[CutColumn::Label] = twoPartLabel(SelNumType, SelUpDown);
    texts[CutColumn::Number] = trimBlanks(SelNumValue);
    int row = 0;
    for (const QVariantList &line : lines) {
        texts[CutColumn::Key] = field(line, Read::Key).toString();
        texts[CutColumn::Place] = QString::number(++row);
        texts[CutColumn::Customer] = u' ' + field(line, Read::Name).toString();
        texts[CutColumn::Amount] = formatBaht(numberOf(field(line, Read::Money))) + u' ';
        texts[CutColumn::Buyer] = field(line, Read::Buyer).toString();
        texts[CutColumn::User] = field(line, Read::User).toString();
        grid.setRow(row, texts);
    }
    grid.setText(SumRow, CutColumn::Amount, formatBaht(CutTotal) + u" บาท"_s);
}

CutLine CutOut::lineAt(int row) const
{
    return {CLng(grid.text(row, CutColumn::Key)), CLng(grid.text(row, CutColumn::Buyer)),
            grid.text(row, CutColumn::User), CLng(grid.text(row, CutColumn::Amount))};
}

void CutOut::cut(const CutLine &line, qint32 amount)
{
    if (amount == line.amount)
        removeLine(line.NPK, line.nuser);
    else
        takeOff(line, amount);
    SetupNewData8();
    RecordsetA.openTable(u"tblNumberCut"_s);
    RecordsetA.set(u"NPK"_s, NextCutKey);
    RecordsetA.set(u"NameFK"_s, line.nameFK);
    RecordsetA.set(u"updown"_s, SelUpDown);
    RecordsetA.set(u"numType"_s, SelNumType);
    RecordsetA.set(u"num23"_s, SelNum23);
    RecordsetA.set(u"numValue"_s, SelNumValue);
    RecordsetA.set(u"numBuy"_s, amount);
    RecordsetA.set(u"nUser"_s, CurrentUser);
    RecordsetA.update();
    RecordsetA.close();
}

void CutOut::remove(int row) const
{
    removeLine(CLng(grid.text(row, CutColumn::Key)), grid.text(row, CutColumn::User));
}

void CutOut::SetupNewData8()
{
    NextCutKey = nextKey(u"tblNumberCut"_s, u"NPK"_s);
}
