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
        qFatal("the engine failed: %s", sqlite3_errmsg(file));
}

/// The order of names, as the program has the engine know it.
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
        check(file, sqlite3_reset(insert)); // gives the outcome of the step
    }
}

} // namespace

double insertBare(const QByteArray &path, const std::vector<BetLine> &lines, Durable durable)
{
    sqlite3 *file = openBare(path);
    sqlite3_stmt *insert = nullptr;
    check(file, sqlite3_prepare_v2(file, Insert, -1, &insert, nullptr));
    QElapsedTimer clock;
    clock.start();
    if (durable == Durable::AllAtOnce) // with room for all pages, so that none is written twice
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

double readBare(const QByteArray &path, const QString &sql, const QVariantList &values)
{
    sqlite3 *file = openBare(path);
    sqlite3_stmt *read = nullptr;
    check(file, sqlite3_prepare_v2(file, sql.toUtf8().constData(), -1, &read, nullptr));
    for (int at = 0; at < values.size(); ++at) {
        const QByteArray text = values[at].toString().toUtf8();
        sqlite3_bind_text(read, at + 1, text.constData(), int(text.size()), SQLITE_TRANSIENT);
    }
    QElapsedTimer clock;
    clock.start();
    while (sqlite3_step(read) == SQLITE_ROW) {
        for (int column = 0; column < sqlite3_column_count(read); ++column)
            sqlite3_column_text(read, column);
    }
    const double seconds = double(clock.nsecsElapsed()) / 1e9;
    check(file, sqlite3_finalize(read)); // gives the outcome of the steps
    check(file, sqlite3_close(file));
    return seconds;
}
