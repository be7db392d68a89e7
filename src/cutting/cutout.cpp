// SPDX-License-Identifier: MIT
#include "cutting/cutout.h"

#include "cutting/selection.h"
#include "entry/vocabulary.h"
#include "ledger/ledger.h"
#include "runtime/values.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int TotalRow = FirstHeaderRow;
constexpr int TitleRow = FirstHeaderRow + 1;

struct Title
{
    int column;
    const char16_t *text;
};

constexpr std::array Titles{
    Title{CutColumn::Place, u"ลำดับ"},   Title{CutColumn::Customer, u" ชื่อลูกค้า"},
    Title{CutColumn::Label, u"ประเภท"}, Title{CutColumn::Number, u"เลข"},
    Title{CutColumn::Amount, u"ยอดซื้อ"},
};

/// Places of what the list of lines reads.
enum class Read { Key, Name, Buyer, Type, Number, Money, User };

/// Takes the amount off a line that stays in the book.
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
    grid.setHeader(TotalRow, CutColumn::Number, {u"ยอดรวม"_s, Qt::AlignCenter, true});
    grid.setHeader(TotalRow, CutColumn::Amount, {{}, Qt::AlignRight | Qt::AlignVCenter, true});
    for (const Title &title : Titles)
        grid.setHeader(TitleRow, title.column, {QString::fromUtf16(title.text)});
    for (const int column : {CutColumn::Place, CutColumn::Label, CutColumn::Number})
        grid.setAlignment(column, Qt::AlignHCenter);
    grid.setAlignment(CutColumn::Amount, Qt::AlignRight);
}

void CutOut::LoadNumrunup()
{
    const SpreadModel::Rebuild rebuild(grid);
    SetupSpread();
    qint32 CutTotal = 0;
    RecordsetA.open(u"SELECT tblNumber.NPK, tblMember.Mname, tblNumber.nameFK, tblNumber.numType,"
                    " tblNumber.numValue, tblNumber.numBuy, tblNumber.nuser"
                    " FROM tblNumber INNER JOIN tblMember ON tblNumber.nameFK = tblMember.MPK"
                    " WHERE [num23] = ? AND [numType] = ? AND [updown] = ? AND [numValue] = ?"
                    " ORDER BY numBuy DESC, NPK"_s,
                    {SelNum23, SelNumType, SelUpDown, trimBlanks(SelNumValue)});
    grid.setRows(RecordsetA.recordCount());
    if (grid.rows() == 0) {
        RecordsetA.close();
        return;
    }
    for (int row = 1; !RecordsetA.eof(); RecordsetA.moveNext(), ++row) {
        CutTotal = addLong({CutTotal, CLng(numberOf(RecordsetA.field(qsizetype(Read::Money))))});
        writeRow(row);
    }
    RecordsetA.close();
    grid.setText(TotalRow, CutColumn::Amount, formatBaht(CutTotal) + u" บาท"_s);
}

/// Writes the recordset's current row.
void CutOut::writeRow(int row)
{
    const auto field = [](Read place) { return RecordsetA.field(qsizetype(place)); };
    grid.setText(row, CutColumn::Key, field(Read::Key).toString());
    grid.setText(row, CutColumn::Place, QString::number(row));
    grid.setText(row, CutColumn::Customer, u' ' + field(Read::Name).toString());
    grid.setText(row, CutColumn::Label, twoPartLabel(field(Read::Type).toInt(), SelUpDown));
    grid.setText(row, CutColumn::Number, field(Read::Number).toString());
    grid.setText(row, CutColumn::Amount, formatBaht(numberOf(field(Read::Money))) + u' ');
    grid.setText(row, CutColumn::Buyer, field(Read::Buyer).toString());
    grid.setText(row, CutColumn::User, field(Read::User).toString());
}

CutLine CutOut::lineAt(int row) const
{
    return {CLng(grid.text(row, CutColumn::Key)), CLng(grid.text(row, CutColumn::Buyer)),
            grid.text(row, CutColumn::User), CLng(grid.text(row, CutColumn::Amount))};
}

void CutOut::cut(const CutLine &line, qint32 amount)
{
    if (amount == line.amount)
        remove(line);
    else
        takeOff(line, amount);
    SetupNewData8();
    RecordsetA.openTable(u"tblNumberCut"_s);
    RecordsetA.addNew();
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

void CutOut::remove(const CutLine &line)
{
    LedgerConnection->run(u"DELETE FROM tblNumber WHERE [NPK] = ? AND [nUser] LIKE ?"_s,
                          {line.NPK, trimBlanks(line.nuser)});
}

void CutOut::SetupNewData8()
{
    NextCutKey = nextKey(u"tblNumberCut"_s, u"NPK"_s);
}
