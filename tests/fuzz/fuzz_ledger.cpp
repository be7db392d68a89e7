// SPDX-License-Identifier: MIT
// Opens damaged Ledgers, with and without the journal of a killed program beside them. A file is
// refused and left as it is, or it opens and holds what was once filed, to the letter.
#include "fuzz/require.h"
#include "ledger/connection.h"
#include "ledger/emptyledger.h"
#include "runtime/runtimeerror.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <array>
#include <cstdint>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

/// The key itself in place of the password: deriving it takes the most part of an opening and
/// looks at nothing in the file but its first sixteen bytes.
const QByteArray Key = "x'" + QByteArray(64, '7') + '\'';

struct Files
{
    QByteArray book;
    QByteArray journal;

    bool operator==(const Files &) const = default;
};

QByteArray bytesOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    require(bytes.isNull()
                || (file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size()),
            "the bench can write");
}

class Bench
{
public:
    Bench();

    /// Opens @p files and looks at what became of them.
    void open(const Files &files);

    Files clean;       ///< as a clean end leaves them
    Files interrupted; ///< as a killed program leaves them

private:
    QString path() const { return m_folder->filePath(u"book.ZDB"_s); }
    QString journalPath() const { return path() + u"-wal"_s; }
    Files read() const { return {bytesOf(path()), bytesOf(journalPath())}; }
    QStringList names() const { return QDir(m_folder->path()).entryList(QDir::Files); }
    bool putBackWal() const;

    std::optional<QTemporaryDir> m_folder = std::make_optional<QTemporaryDir>();
    QStringList m_states; ///< what the Ledger held after each line filed
};

QString contentsOf(Connection &ledger)
{
    QString all;
    const auto tables = ledger.run(u"SELECT name, sql FROM sqlite_master ORDER BY name"_s);
    for (const QVariantList &table : tables.rows) {
        all += table[0].toString() + table[1].toString();
        if (!table[1].toString().startsWith(u"CREATE TABLE"_s))
            continue;
        for (const QVariantList &row : ledger.run(u"SELECT * FROM "_s + table[0].toString()).rows) {
            for (const QVariant &field : row)
                all += field.toString() + u'|';
        }
    }
    return all;
}

Bench::Bench()
{
    makeEmptyLedger(path());
    Connection::open(path())->run(u"PRAGMA rekey = \"%1\""_s.arg(QLatin1String(Key)));
    auto ledger = Connection::open(path(), Key);
    m_states += contentsOf(*ledger);
    for (int line = 0; line < 4; ++line) {
        ledger->run(u"INSERT INTO tblNumber VALUES (NULL, 0, 3, -1, 1, '123', 50, 'sv')"_s);
        m_states += contentsOf(*ledger);
    }
    interrupted = read();
    ledger.reset();
    clean = {bytesOf(path()), {}};
}

/// Undoes what becomes of a WAL of another file. False if there was none.
bool Bench::putBackWal() const
{
    const QStringList aside = names().filter(u"-wal-of-another-file-"_s);
    return !aside.isEmpty() && QFile::rename(m_folder->filePath(aside[0]), journalPath());
}

void Bench::open(const Files &files)
{
    m_folder.emplace(); // a new one, since a refused Ledger beside a journal is held to the end
    write(path(), files.book);
    write(journalPath(), files.journal);
    const QStringList before = names();
    try {
        const auto ledger = Connection::open(path(), Key);
        require(m_states.contains(contentsOf(*ledger)), "an opened Ledger holds what was filed");
    } catch (const RunTimeError &) {
        putBackWal();
        require(!(files == clean) && !(files == interrupted), "a sound Ledger opens");
        require(read() == files && names() == before, "a refused Ledger is left as it is");
        return;
    }
    if (putBackWal()) {
        require(bytesOf(journalPath()) == files.journal, "a WAL of another file is kept");
        QFile::remove(journalPath());
    }
    require(names() == QStringList(u"book.ZDB"_s), "a clean end leaves one file");
    require(m_states.contains(contentsOf(*Connection::open(path(), Key))),
            "a Ledger that was closed opens again");
}

/// Changes one of the files as the first byte of @p edit tells, at the place in the next two, ffff
/// being its end; the fourth says how. @p more are the bytes behind, of which those used are taken.
void damage(QByteArray &bytes, const QByteArray &edit, QByteArray &more)
{
    constexpr qsizetype Page = 1024;
    const qsizetype place = uchar(edit[1]) | (uchar(edit[2]) << 8);
    const auto how = uchar(edit[3]);
    switch (edit[0] & 3) {
    case 0: // a flipped bit
        if (!bytes.isEmpty())
            bytes[place % bytes.size()] = char(bytes[place % bytes.size()] ^ (1 << (how & 7)));
        break;
    case 1: // a torn file
        bytes.resize(place % (bytes.size() + 1));
        break;
    case 2: { // foreign bytes
        const QByteArray foreign = more.left(how % 64);
        more.remove(0, foreign.size());
        const qsizetype at = place == 0xffff ? bytes.size() : place % (bytes.size() + 1);
        bytes.replace(at, foreign.size(), foreign);
        break;
    }
    default: // a page in the place of another
        if (const qsizetype pages = bytes.size() / Page; pages > 0)
            bytes.replace(place % pages * Page, Page, bytes.mid(how % pages * Page, Page));
    }
}

} // namespace

/// The first byte picks the files to begin with; then edits follow, as damage() takes them.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static Bench bench;
    if (size == 0)
        return 0;
    const std::array begin{Files{}, bench.clean, bench.interrupted,
                           Files{bench.clean.book, bench.interrupted.journal}};
    Files files = begin[data[0] & 3];
    QByteArray edits(reinterpret_cast<const char *>(data) + 1, qsizetype(size) - 1);
    while (edits.size() >= 4) {
        const QByteArray edit = edits.left(4);
        edits.remove(0, 4);
        damage((edit[0] & 4) != 0 ? files.journal : files.book, edit, edits);
    }
    bench.open(files);
    return 0;
}
