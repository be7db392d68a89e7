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

constexpr std::array Columns{
    GridColumn{CutColumn::Place, u"ลำดับ"},
    GridColumn{CutColumn::Customer, u" ชื่อลูกค้า", Qt::AlignLeft, Qt::AlignHCenter},
    GridColumn{CutColumn::Label, u"ประเภท"},
    GridColumn{CutColumn::Number, u"เลข"},
    GridColumn{CutColumn::Amount, u"ยอดซื้อ", Qt::AlignRight, Qt::AlignHCenter},
};

/// Places of what the list of lines reads.
enum class Read { Key, Name, Buyer, Money, User };

const QVariant &field(Read place)
{
    return RecordsetA.field(qsizetype(place));
}

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
    grid.setTitles(TitleRow, Columns);
}

void CutOut::LoadNumrunup()
{
    const SpreadModel::Rebuild rebuild(grid);
    SetupSpread();
    const QString number = trimBlanks(SelNumValue);
    RecordsetA.open(u"SELECT tblNumber.NPK, tblMember.Mname, tblNumber.nameFK, tblNumber.numBuy,"
                    " tblNumber.nuser"
                    " FROM tblNumber INNER JOIN tblMember ON tblNumber.nameFK = tblMember.MPK"
                    " WHERE [num23] = ? AND [numType] = ? AND [updown] = ? AND [numValue] = ?"
                    " ORDER BY numBuy DESC, NPK"_s,
                    {SelNum23, SelNumType, SelUpDown, number});
    grid.setRows(RecordsetA.recordCount());
    if (grid.rows() > 0)
        fillRows(number);
    RecordsetA.close();
}

/// Writes the recordset's rows and their sum.
void CutOut::fillRows(const QString &number)
{
    qint32 CutTotal = 0;
    std::array<QString, CutColumn::User + 1> texts;
    texts[CutColumn::Label] = twoPartLabel(SelNumType, SelUpDown);
    texts[CutColumn::Number] = number;
    for (int row = 1; !RecordsetA.eof(); RecordsetA.moveNext(), ++row) {
        const double money = numberOf(field(Read::Money));
        CutTotal = addLong({CutTotal, CLng(money)});
        texts[CutColumn::Key] = field(Read::Key).toString();
        texts[CutColumn::Place] = QString::number(row);
        texts[CutColumn::Customer] = u' ' + field(Read::Name).toString();
        texts[CutColumn::Amount] = formatBaht(money) + u' ';
        texts[CutColumn::Buyer] = field(Read::Buyer).toString();
        texts[CutColumn::User] = field(Read::User).toString();
        grid.setRow(row, texts);
    }
    grid.setText(TotalRow, CutColumn::Amount, formatBaht(CutTotal) + u" บาท"_s);
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
