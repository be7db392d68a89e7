// SPDX-License-Identifier: MIT
#include "risk/scan.h"

#include "entry/hotnumbers.h"
#include "ledger/ledger.h"
#include "runtime/runtimeerror.h"
#include "runtime/values.h"

#include <algorithm>

using namespace Qt::StringLiterals;

qint32 ScanRow = 0;

namespace {

constexpr std::array Columns{
    GridColumn{ScanColumn::Type, u"ประเภท"},   GridColumn{ScanColumn::Number, u"เลข"},
    GridColumn{ScanColumn::Amount, u"ยอดเงิน"}, GridColumn{ScanColumn::Risk, u"ความเสี่ยง"},
    GridColumn{ScanColumn::Inspect, u" "},     GridColumn{ScanColumn::Cut, u" "},
};

/// Returns the numbers of a side in all classes, most money first.
QList<ScanLine> readLines(bool updown)
{
    QList<ScanLine> lines;
    // By numType too, since a number may have the same money in two classes.
    RecordsetA.open(u"SELECT num23, numType, numValue, Sum(numBuy) AS nMoney FROM tblNumber"
                    " WHERE updown = ? GROUP BY num23, updown, numType, numValue"
                    " ORDER BY Sum(numBuy) DESC, numValue, numType"_s,
                    {updown});
    lines.reserve(RecordsetA.recordCount());
    for (; !RecordsetA.eof(); RecordsetA.moveNext())
        lines += ScanLine{
            RecordsetA.field(u"num23"_s).toInt(), RecordsetA.field(u"numType"_s).toInt(),
            RecordsetA.field(u"numValue"_s).toString(), RecordsetA.field(u"nMoney"_s).toString()};
    RecordsetA.close();
    return lines;
}

QString textOf(const QList<ScanLine> &related)
{
    QString text;
    for (const ScanLine &line : related)
        text += QString::number(line.numType) + u"  =  "_s + line.numValue + u"      ยอด  "_s
                + line.nMoney + u"\r\n"_s;
    return text;
}

} // namespace

RiskScan::RiskScan()
{
    SetupSpread();
}

void RiskScan::SetupSpread()
{
    const SpreadModel::Rebuild rebuild(grid);
    grid.setup(ScanColumn::Cut, 1);
    grid.setTitles(FirstHeaderRow, Columns);
}

bool RiskScan::run(bool updown, ProgressBar &progress)
{
    const SpreadModel::Rebuild rebuild(grid);
    SetupSpread();
    const QList<ScanLine> lines = fill(updown, progress);
    if (lines.isEmpty())
        return true;
    const std::vector<double> counts = relate(updown, lines);
    grid.sortDescending(counts);
    // Rows without related lines are at the end now.
    grid.setRows(int(counts.size()) - int(std::count(counts.begin(), counts.end(), 0)));
    return grid.rows() > 0;
}

/// Lists all numbers bought on a side and returns them in the order of the rows.
QList<ScanLine> RiskScan::fill(bool updown, ProgressBar &progress)
{
    QList<ScanLine> lines;
    resumeNext([&] { lines = readLines(updown); });
    grid.setRows(int(lines.size()));
    if (lines.isEmpty())
        return lines;
    HotNumbers hot;
    resumeNext([&] { hot = HotNumbers(readHotNumbers()); });
    progress.start(int(lines.size()));
    for (int row = 1; const ScanLine &line : lines) {
        const int at = classOf(line.num23, updown, line.numType);
        const bool isHot = at >= 0 && hot.reach(BetClasses[size_t(at)], line.numValue);
        grid.setText(row, ScanColumn::Type, oneWordLabel(line.numType));
        grid.setText(row, ScanColumn::Number, line.numValue);
        resumeNext([&] {
            const double money = CDbl(line.nMoney);
            grid.setText(row, ScanColumn::Amount, formatBaht(isHot ? money / 2 : money));
        });
        grid.setText(row, ScanColumn::Inspect, u"ตรวจสอบ"_s);
        grid.setText(row, ScanColumn::Cut, u"คัดออก"_s);
        progress.step();
        ++row;
    }
    return lines;
}

/// Writes the related lines of each row and their count. Returns the counts.
std::vector<double> RiskScan::relate(bool updown, const QList<ScanLine> &lines)
{
    const RelatedLines book(updown, lines);
    std::vector<double> counts;
    for (int row = 1; const ScanLine &line : lines) {
        const QList<ScanLine> related = book.of(line);
        counts.push_back(double(related.size()));
        if (!related.isEmpty()) {
            grid.setText(row, ScanColumn::Risk, QString::number(related.size()) + u'%');
            grid.setText(row, ScanColumn::Related, textOf(related));
        }
        ++row;
    }
    return counts;
}
