// SPDX-License-Identifier: MIT
// The player in the risk scan: every row of both analyses, and the inspector.
#include "tour/player.h"

#include "risk/scan.h"
#include "widgets/pushbutton.h"
#include "widgets/spread.h"

#include <QLabel>
#include <QPlainTextEdit>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;

void Player::visitScan(const Draw &draw)
{
    Hands::click(navigation(2));
    m_hands.inNextDialog([&](QWidget *scan) {
        if (!Hands::focusComesTo(scan))
            compare(u"risk scan"_s, u"in front"_s, u"behind"_s);
        analyse(scan, true, draw);
        analyse(scan, false, draw);
        Hands::press(Qt::Key_Escape);
    });
    Hands::click(control<PushButton>("lvButtons_H6")); // returns when the dialog has been closed
    if (!Hands::focusComesTo(&m_window))
        compare(u"main window after the scan"_s, u"in front"_s, u"behind"_s);
    compare(u"boxes of the scan"_s, QString(), m_hands.takeBoxes().join(u'\n'));
}

void Player::analyse(QWidget *scan, bool top, const Draw &draw)
{
    const QString side = top ? u"บน"_s : u"ล่าง"_s;
    Hands::click(scan->findChild<PushButton *>(top ? u"lvButtons_H0"_s : u"lvButtons_H1"_s));
    QStringList expected;
    for (const DrawRisk &risk : draw.risks) {
        if (risk.side == side)
            expected += risk.row;
    }
    const auto *grid = scan->findChild<Spread *>(u"fpSpread1"_s);
    QStringList found;
    QList<int> counts;
    for (int row = 1; row <= grid->rows(); ++row) {
        const QString count = grid->text(row, ScanColumn::Risk).chopped(1);
        counts += count.toInt();
        found += QStringList({grid->text(row, ScanColumn::Type),
                              grid->text(row, ScanColumn::Number), count})
                     .join(u'\t');
    }
    compare(u"most related first, "_s + side, u"yes"_s,
            std::is_sorted(counts.rbegin(), counts.rend()) ? u"yes"_s : u"no"_s);
    std::sort(expected.begin(), expected.end());
    std::sort(found.begin(), found.end());
    compare(u"risk scan, "_s + side, expected.join(u'\n'), found.join(u'\n'));
    takePicture(top ? u"scan"_s : u"scan-bottom"_s, scan);
    if (!counts.isEmpty())
        inspectRow(scan, std::min<int>(2, int(counts.size())), side);
}

/// Inspects a row by keys: its count has to be that of the lines listed.
void Player::inspectRow(QWidget *scan, int row, const QString &side)
{
    auto *grid = scan->findChild<Spread *>(u"fpSpread1"_s);
    m_hands.inNextDialog([&](QWidget *number) {
        if (!Hands::focusComesTo(number))
            compare(u"inspector"_s, u"in front"_s, u"behind"_s);
        const QString lines = number->findChild<QPlainTextEdit *>(u"Text1"_s)->toPlainText();
        compare(u"title of the inspector"_s, u"ตรวจสอบเลข ( %1 )"_s.arg(side),
                number->windowTitle());
        compare(u"lines in the inspector"_s,
                number->findChild<QLabel *>(u"Label5"_s)->text().chopped(1),
                QString::number(lines.count(u'\n')));
        takePicture(u"inspector"_s, number);
        Hands::press(Qt::Key_Return);
    });
    while (grid->activeRow() < row)
        Hands::press(Qt::Key_Down);
    Hands::press(Qt::Key_Space);
    if (!Hands::focusComesTo(scan))
        compare(u"risk scan after the inspector"_s, u"in front"_s, u"behind"_s);
}
