// SPDX-License-Identifier: MIT
// Keys lines of whatever digits and dashes into a ticket, and into that of the model.
#include "desktop/msgbox.h"
#include "fuzz/require.h"
#include "model/trade.h"
#include "support/keying.h"

#include <cstdint>
#include <cstring>

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

void checkTotals(Ticket &ticket, const model::Ticket &expected)
{
    const GridTotals totals = ticket.totalGrids();
    for (size_t at = 0; at < totals.size(); ++at) {
        qint64 total = 0;
        for (const model::Bet &bet : expected.bets[at])
            total += bet.amount;
        require(totals[at] == total, "the total is the sum of the keyed money");
        require(ticket.grids[at].text(TotalRow, AmountColumn) == model::baht(total),
                "the header shows the total");
    }
    require(sumTotal(totals) == expected.total(), "the ticket's total is the sum of all grids");
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
    model::Ticket expected;
    const QByteArray input(reinterpret_cast<const char *>(data), qsizetype(size));
    for (const QByteArray &line : input.split('\n')) {
        if (line.isEmpty())
            continue;
        const KindEntry &kind = KindEntries[uchar(line[0] - 'a') % KindEntries.size()];
        const QString caption = kind.caption.toString();
        const QString text = keyedText(line.mid(1));
        boxesShown = 0;
        keyLine(ticket, caption, text);
        const bool accepted = expected.key(caption, text);
        require(boxesShown == (accepted ? 0 : 1),
                "a line is refused with one box or accepted with none");
        require(ticket.ShowTopTab == expected.showsTop, "only an accepted line turns the tab");
    }
    require(rowsOf(ticket) == expected.rows(), "the ticket reads as that of the model");
    checkTotals(ticket, expected);
    return 0;
}
