// SPDX-License-Identifier: MIT
#include "barefile.h"

#include "ledger/collation.h"
#include "ledger/connection.h"

#include <QElapsedTimer>

#define SQLITE_HAS_CODEC
#include <sqlite3.h>

namespace {

constexpr const char *Settings = "PRAGMA cipher_compatibility = 3;"
                                 "PRAGMA locking_mode = EXCLUSIVE;"
                                 "PRAGMA synchronous = FULL;"
                                 "PRAGMA secure_delete = ON;";

constexpr const char *Insert =
    "INSERT INTO tblNumber (NPK, NameFK, num23, updown, numType, numValue, numBuy, nuser)"
    " VALUES (?, ?, ?, ?, ?, ?, 20, 'sv')";

void check(sqlite3 *file, int code)
{
    if (code != SQLITE_OK)
        qFatal("SQLite failed: %s", sqlite3_errmsg(file));
}

void insertLines(sqlite3 *file, sqlite3_stmt *insert, const std::vector<BetLine> &lines)
{
    int key = 0;
    for (const BetLine &line : lines) {
        sqlite3_bind_int(insert, 1, ++key);
        sqlite3_bind_int(insert, 2, line.customer);
        sqlite3_bind_int(insert, 3, line.betClass->num23);
        sqlite3_bind_int(insert, 4, line.betClass->updown ? -1 : 0);
        sqlite3_bind_int(insert, 5, line.betClass->numType);
        sqlite3_bind_text(insert, 6, line.number.constData(), -1, SQLITE_STATIC);
        sqlite3_step(insert);
        check(file, sqlite3_reset(insert)); // returns the error of the step
    }
}

/// The program's collation of names.
int compareNames(void *, int leftSize, const void *left, int rightSize, const void *right)
{
    return compareThai(QString::fromUtf8(static_cast<const char *>(left), leftSize),
                       QString::fromUtf8(static_cast<const char *>(right), rightSize));
}

sqlite3 *openBare(const QByteArray &path)
{
    sqlite3 *file = nullptr;
    check(file, sqlite3_open_v2(path.constData(), &file, SQLITE_OPEN_READWRITE, nullptr));
    check(file, sqlite3_key(file, LedgerPassword, int(qstrlen(LedgerPassword))));
    check(file, sqlite3_exec(file, Settings, nullptr, nullptr, nullptr));
    check(file, sqlite3_create_collation(file, ThaiCollation, SQLITE_UTF8, nullptr, compareNames));
    return file;
}

sqlite3_stmt *prepareBare(sqlite3 *file, const BareStatement &asked)
{
    sqlite3_stmt *statement = nullptr;
    check(file, sqlite3_prepare_v2(file, asked.sql.constData(), -1, &statement, nullptr));
    for (int at = 0; at < asked.values.size(); ++at) {
        const QVariant &value = asked.values[at];
        const QByteArray text = value.toString().toUtf8();
        if (value.typeId() == QMetaType::QString)
            sqlite3_bind_text(statement, at + 1, text.constData(), -1, SQLITE_TRANSIENT);
        else
            sqlite3_bind_int(statement, at + 1, value.toInt());
    }
    return statement;
}

/// Returns the number of bytes read, so that the compiler cannot drop a call.
qint64 readAll(sqlite3_stmt *statement)
{
    qint64 bytes = 0;
    const int columns = sqlite3_column_count(statement);
    while (sqlite3_step(statement) == SQLITE_ROW) {
        for (int column = 0; column < columns; ++column) {
            sqlite3_column_text(statement, column);
            bytes += sqlite3_column_bytes(statement, column);
        }
    }
    return bytes;
}

} // namespace

BareReader::BareReader(const QByteArray &path) : m_file(openBare(path)) {}

BareReader::~BareReader()
{
    check(m_file, sqlite3_close(m_file));
}

double BareReader::read(const BareStatements &statements)
{
    qint64 bytes = 0;
    QElapsedTimer clock;
    clock.start();
    for (const BareStatement &asked : statements) {
        sqlite3_stmt *statement = prepareBare(m_file, asked);
        bytes += readAll(statement);
        check(m_file, sqlite3_finalize(statement));
    }
    const double seconds = double(clock.nsecsElapsed()) / 1e9;
    if (bytes == 0)
        qFatal("the statements read nothing");
    return seconds;
}

double insertBare(const QByteArray &path, const std::vector<BetLine> &lines, Durable durable)
{
    sqlite3 *file = openBare(path);
    sqlite3_stmt *insert = nullptr;
    check(file, sqlite3_prepare_v2(file, Insert, -1, &insert, nullptr));
    QElapsedTimer clock;
    clock.start();
    if (durable == Durable::AllAtOnce) // with a cache for all pages, so that none is written twice
        check(file,
              sqlite3_exec(file, "PRAGMA cache_size = -200000; BEGIN", nullptr, nullptr, nullptr));
    insertLines(file, insert, lines);
    if (durable == Durable::AllAtOnce)
        check(file, sqlite3_exec(file, "COMMIT", nullptr, nullptr, nullptr));
    const double seconds = double(clock.nsecsElapsed()) / 1e9;
    sqlite3_finalize(insert);
    check(file, sqlite3_close(file));
    return seconds;
}
