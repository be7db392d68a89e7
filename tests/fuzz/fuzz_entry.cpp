// SPDX-License-Identifier: MIT
// Keys lines of whatever digits and dashes into a ticket and keeps a second one with a pencil.
#include "desktop/msgbox.h"
#include "fuzz/require.h"
#include "law/pencil.h"
#include "support/keying.h"

#include <cstdint>
#include <cstring>
#include <numeric>

using namespace Qt::StringLiterals;

namespace {

int boxesShown = 0;

/// The entry field lets in these keys alone, and fifty of them.
QString keyedText(const QByteArray &bytes)
{
    constexpr const char *keys = "0123456789-";
    QString text;
    for (const char byte : bytes.left(50))
        text += QLatin1Char(byte != 0 && std::strchr(keys, byte) ? byte : keys[uchar(byte) % 11]);
    return text;
}

void checkTotals(Ticket &ticket, const PencilSlip &slip)
{
    const GridTotals totals = ticket.totalGrids();
    const auto expected = slip.totals();
    for (size_t at = 0; at < PencilColumns; ++at) {
        require(totals[at] == expected[at], "the total is the sum of the keyed money");
        require(ticket.grids[at].text(TotalRow, AmountColumn) == pencilled(expected[at]),
                "the header shows the total");
    }
    require(sumTotal(totals) == std::accumulate(expected.begin(), expected.end(), qint64(0)),
            "the ticket's total is the sum of all grids");
}

} // namespace

/// An input is lines parted by line feeds; the first byte of each picks the kind, "a" the first.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    setBoxShower([](const Box &) {
        ++boxesShown;
        return BoxAnswer::Ok;
    });
    Ticket ticket;
    PencilSlip slip;
    const QByteArray input(reinterpret_cast<const char *>(data), qsizetype(size));
    for (const QByteArray &line : input.split('\n')) {
        if (line.isEmpty())
            continue;
        const KindEntry &kind = KindEntries[uchar(line[0] - 'a') % KindEntries.size()];
        const QString caption = kind.caption.toString();
        const QString text = keyedText(line.mid(1));
        boxesShown = 0;
        keyLine(ticket, caption, text);
        const bool taken = slip.key(caption, text);
        require(boxesShown == (taken ? 0 : 1), "a line is refused with one box or taken with none");
        require(ticket.ShowTopTab == slip.topShown, "only a taken line turns the tab");
    }
    require(rowsOf(ticket) == slip.rows(), "the ticket reads as the pencil has it");
    checkTotals(ticket, slip);
    return 0;
}
