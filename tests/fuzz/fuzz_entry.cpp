// SPDX-License-Identifier: MIT
// Keys lines of whatever digits and dashes into a ticket and into that of the model.
#include "fuzz/fuzz.h"
#include "model/keyed.h"

/// An input is lines; the first byte of each picks the kind, "a" the first.
void tryInput(const QByteArray &input)
{
    const QByteArray keys("0123456789-"); // all that the field lets in, and fifty of them
    KeyedTicket ticket;
    for (const QByteArray &line : input.split('\n')) {
        QString text;
        for (const char byte : line.mid(1, 50))
            text += QLatin1Char(keys.contains(byte) ? byte : keys[uchar(byte) % keys.size()]);
        if (!line.isEmpty())
            ticket.key(KindEntries[uchar(line[0] - 'a') % KindEntries.size()].caption.toString(),
                       text);
    }
    ticket.compare();
}
