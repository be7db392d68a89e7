// SPDX-License-Identifier: MIT
// Opens the damaged Ledger of a killed program and its WAL. The Ledger is refused and left as it
// is, or it opens and holds some of the lines that were saved, unchanged.
#include "fuzz/fuzz.h"
#include "ledger/connection.h"
#include "ledger/emptyledger.h"
#include "model/step.h"
#include "runtime/runtimeerror.h"
#include "support/same.h"

#include <QDir>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {

/// The key itself in place of the password: deriving it takes most of the time of opening and looks
/// at nothing in the file but its first sixteen bytes.
const QByteArray Key = "x'" + QByteArray(64, '7') + '\'';

QByteArrayList filesIn(const QDir &folder)
{
    QByteArrayList contents;
    for (const QString &name : folder.entryList(QDir::Files)) {
        QFile file(folder.filePath(name));
        contents += file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    return contents;
}

/// The Ledger and the WAL.
QByteArrayList killedFiles()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"book.ZDB"_s);
    makeEmptyLedger(path);
    Connection::open(path)->run(u"PRAGMA rekey = \"%1\""_s.arg(QLatin1String(Key)));
    const auto ledger = Connection::open(path, Key);
    for (int line = 0; line < 4; ++line)
        ledger->run(u"INSERT INTO tblNumber VALUES (NULL, 0, 3, -1, 1, '123', 50, 'sv')"_s);
    return filesIn(folder.path());
}

} // namespace

/// An input is edits: "0" for the Ledger or "1" for the WAL, the place in two bytes, and how many
/// bytes follow to be written there; if none do, the file ends there.
void tryInput(const QByteArray &input)
{
    static const QByteArrayList killed = killedFiles();
    QByteArrayList damaged = killed;
    for (QByteArray edits = input; edits.size() >= 4;) {
        QByteArray &bytes = damaged[edits[0] & 1];
        const int place = uchar(edits[1]) | (uchar(edits[2]) << 8);
        const QByteArray written = edits.mid(4, uchar(edits[3]));
        bytes.replace(place % (bytes.size() + 1), written.isEmpty() ? bytes.size() : written.size(),
                      written);
        edits.remove(0, 4 + written.size());
    }
    const QTemporaryDir folder; // a new one, since a refused Ledger beside a WAL is held to the end
    const QString path = folder.filePath(u"book.ZDB"_s);
    for (const auto &[name, bytes] :
         {std::pair(path, damaged[0]), {path + u"-wal"_s, damaged[1]}}) {
        QFile file(name);
        if (file.open(QIODevice::WriteOnly))
            file.write(bytes);
    }
    QStringList rows;
    try {
        rows = ledgerRows(*Connection::open(path, Key));
    } catch (const RunTimeError &refusal) {
        const bool isLeft = filesIn(folder.path()) == damaged && damaged != killed;
        same(refusal.report(), {isLeft ? u"left"_s : u"changed, or undamaged"_s}, {u"left"_s});
        return;
    }
    model::Book saved;
    for (int line = 1; line <= rows.filter(u"line "_s).size(); ++line)
        saved.lines[line] = {0, u"123"_s, 50};
    same(u"Ledger"_s, rows, saved.rows());
}
