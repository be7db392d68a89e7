// SPDX-License-Identifier: MIT
// Makes a WAL of frames in any order, some of them damaged, and compares the copies of page 1 that
// the program finds in it with the one that SQLite uses.
#include "fuzz/fuzz.h"
#include "fuzz/require.h"
#include "ledger/database.h"
#include "ledger/walfile.h"

#include <QDataStream>
#include <QFile>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {

constexpr int PageSize = 512;
constexpr int IdPlace = 60; ///< of PRAGMA user_version in page 1

QByteArray words(std::initializer_list<quint32> values)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    for (const quint32 value : values)
        stream << value;
    return bytes;
}

void write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    require(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size(), "it is written");
}

/// Makes a database of two pages at @p path and returns its content.
QByteArray pagesOf(const QString &path)
{
    write(path, {});
    Database(path, Database::Access::Write)
        .execute("PRAGMA page_size = 512; PRAGMA journal_mode = WAL; CREATE TABLE bet (money)");
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Returns the id in a copy of page 1, or 0 if there is none.
quint32 idIn(const QByteArray &page)
{
    quint32 id = 0;
    QDataStream(page.mid(IdPlace)) >> id;
    return id;
}

} // namespace

/// The first byte of an input is 1 for big-endian sums. Each further byte is a frame: 1 for page 1
/// with the frame's number as its id, 2 for a commit, 4 for a foreign salt, 8 for a wrong sum.
/// The last frame lacks its last byte if it has 16.
void tryInput(const QByteArray &input)
{
    static const QTemporaryDir folder; // removed after the last input
    const QString path = folder.filePath(u"book"_s);
    static const QByteArray pages = pagesOf(path);
    const bool isBigEndian = input.startsWith('1');
    quint32 one = 0;
    quint32 two = 0;
    const auto sumAfter = [&](const QByteArray &bytes) {
        QDataStream stream(bytes);
        stream.setByteOrder(isBigEndian ? QDataStream::BigEndian : QDataStream::LittleEndian);
        for (quint32 even = 0, odd = 0; !stream.atEnd();) {
            stream >> even >> odd;
            one += even + two;
            two += odd + one;
        }
        return words({one, two});
    };
    QByteArray bytes = words({0x377f0682U + (isBigEndian ? 1 : 0), 3'007'000, PageSize, 0, 11, 12});
    bytes += sumAfter(bytes);
    quint32 number = 0;
    for (const int frame : input.mid(1)) {
        const quint32 at = (frame & 1) != 0 ? 1 : 2;
        QByteArray page = pages.mid((at - 1) * PageSize, PageSize);
        if (++number; at == 1)
            page.replace(IdPlace, 4, words({number}));
        const QByteArray begin = words({at, (frame & 2) != 0 ? 2U : 0U});
        const QByteArray sum = sumAfter(begin + page);
        bytes += begin + words({(frame & 4) != 0 ? 10U : 11U, 12});
        bytes += ((frame & 8) != 0 ? words({1, 2}) : sum) + page;
    }
    if (input.size() > 1 && (input.back() & 16) != 0)
        bytes.chop(1);
    write(path, pages);
    write(path + u"-wal"_s, bytes);
    const WalContents found = readWal(path + u"-wal"_s);
    Database opened(path, Database::Access::Write);
    opened.execute("PRAGMA locking_mode = EXCLUSIVE");
    const quint32 used = opened.run(u"PRAGMA user_version"_s).rows[0][0].toUInt();
    require(idIn(found.lastImage) == used, "the last copy of page 1 is the one that SQLite uses");
    quint32 first = used;
    for (quint32 frame = used; frame > 0; --frame)
        first = (input[frame] & 1) != 0 ? frame : first;
    require(idIn(found.firstImage) == first, "the first copy of page 1 is found");
}
