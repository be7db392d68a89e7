// SPDX-License-Identifier: MIT
// The only file that includes SQLite's header.
#include "ledger/database.h"

#include "ledger/collation.h"
#include "runtime/runtimeerror.h"

#include <QScopeGuard>

#include <utility>

#define SQLITE_HAS_CODEC
#include <sqlite3.h>

using namespace Qt::StringLiterals;

namespace {

using Compare = int (*)(QStringView left, QStringView right);

template<Compare compare>
int compareUtf8(void *, int leftSize, const void *left, int rightSize, const void *right)
{
    return compare(QString::fromUtf8(static_cast<const char *>(left), leftSize),
                   QString::fromUtf8(static_cast<const char *>(right), rightSize));
}

QVariant columnValue(sqlite3_stmt *statement, int column)
{
    switch (sqlite3_column_type(statement, column)) {
    case SQLITE_INTEGER:
        return qlonglong(sqlite3_column_int64(statement, column));
    case SQLITE_FLOAT:
        return sqlite3_column_double(statement, column);
    case SQLITE_NULL:
        return {};
    default:
        return QString::fromUtf8(
            reinterpret_cast<const char *>(sqlite3_column_text(statement, column)),
            sqlite3_column_bytes(statement, column));
    }
}

int bindValue(sqlite3_stmt *statement, int place, const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::UnknownType:
        return sqlite3_bind_null(statement, place);
    case QMetaType::Bool:
        return sqlite3_bind_int64(statement, place, value.toBool() ? -1 : 0);
    case QMetaType::Double:
        return sqlite3_bind_double(statement, place, value.toDouble());
    case QMetaType::QString: {
        const QByteArray text = value.toString().toUtf8();
        return sqlite3_bind_text(statement, place, text.constData(), int(text.size()),
                                 SQLITE_TRANSIENT);
    }
    default:
        Q_ASSERT(value.canConvert<qlonglong>());
        return sqlite3_bind_int64(statement, place, value.toLongLong());
    }
}

int flagsFor(Database::Access access)
{
    return access == Database::Access::Write ? SQLITE_OPEN_READWRITE
                                             : SQLITE_OPEN_READONLY | SQLITE_OPEN_URI;
}

QByteArray nameFor(const QString &path, Database::Access access)
{
    if (access != Database::Access::Immutable)
        return path.toUtf8();
    const QByteArray begin = path.startsWith(u'/') ? "file://" : "file:///"; // C:/ on Windows
    return begin + path.toUtf8().toPercentEncoding("/:") + "?immutable=1";
}

} // namespace

void raiseDatabaseFailure(const QString &message)
{
    throw RunTimeError(RunTimeError::DatabaseFailure, message);
}

QString messageOf(Refusal reason)
{
    constexpr int codes[] = {SQLITE_CANTOPEN, SQLITE_READONLY, SQLITE_NOTADB, SQLITE_CORRUPT,
                             SQLITE_BUSY};
    return QString::fromUtf8(sqlite3_errstr(codes[int(reason)]));
}

void raiseDatabaseFailure(Refusal reason)
{
    raiseDatabaseFailure(messageOf(reason));
}

Database::Database(const QString &path, Access access)
{
    // SQLITE_NOMUTEX, since the program has one thread.
    const int code = sqlite3_open_v2(nameFor(path, access).constData(), &m_handle,
                                     flagsFor(access) | SQLITE_OPEN_NOMUTEX, nullptr);
    auto closed = qScopeGuard([this] { sqlite3_close(m_handle); });
    check(code);
    closed.dismiss();
}

Database::~Database()
{
    finalizeAll();
    sqlite3_close(m_handle);
}

void Database::finalizeAll()
{
    for (sqlite3_stmt *statement : std::as_const(m_prepared))
        sqlite3_finalize(statement);
    m_prepared.clear();
}

void Database::check(int code) const
{
    if (code == SQLITE_OK)
        return;
    // With SQLCipher 4.13, SQLite reports a page that fails its checksum as a lack of memory.
    if (code == SQLITE_NOMEM)
        raiseDatabaseFailure(Refusal::Damaged);
    raiseDatabaseFailure(
        QString::fromUtf8(m_handle ? sqlite3_errmsg(m_handle) : sqlite3_errstr(code)));
}

void Database::lock() const
{
    sqlite3_file *file = nullptr;
    check(sqlite3_file_control(m_handle, "main", SQLITE_FCNTL_FILE_POINTER, &file));
    for (const int level : {SQLITE_LOCK_SHARED, SQLITE_LOCK_EXCLUSIVE}) {
        const int code = file->pMethods->xLock(file, level);
        if (code != SQLITE_OK)
            raiseDatabaseFailure(QString::fromUtf8(sqlite3_errstr(code)));
    }
}

QByteArray Database::firstBytes(qsizetype count) const
{
    // Read through SQLite: on POSIX, closing a second descriptor of the file would drop SQLite's
    // locks.
    sqlite3_file *file = nullptr;
    QByteArray bytes(count, '\0');
    if (sqlite3_file_control(m_handle, "main", SQLITE_FCNTL_FILE_POINTER, &file) != SQLITE_OK
        || file->pMethods->xRead(file, bytes.data(), int(count), 0) != SQLITE_OK)
        return {};
    return bytes;
}

void Database::setKey(const QByteArray &key) const
{
    check(sqlite3_key(m_handle, key.constData(), int(key.size())));
    // The format of SQLCipher 3, which newer versions read too but do not use by default.
    execute("PRAGMA cipher_compatibility = 3");
}

void Database::configure()
{
    check(sqlite3_create_collation(m_handle, AnyCaseCollation, SQLITE_UTF8, nullptr,
                                   compareUtf8<compareAnyCase>));
    check(sqlite3_create_collation(m_handle, ThaiCollation, SQLITE_UTF8, nullptr,
                                   compareUtf8<compareThai>));
    const auto countPages = [](void *pages, sqlite3 *, const char *, int count) {
        *static_cast<int *>(pages) = count;
        return SQLITE_OK;
    };
    sqlite3_wal_hook(m_handle, countPages, &m_walPages); // replaces SQLite's automatic checkpoints
    // Locks the file from the first read on, so that SQLite needs no shared memory file (-shm).
    execute("PRAGMA locking_mode = EXCLUSIVE");
    execute("PRAGMA synchronous = FULL");
    execute("PRAGMA secure_delete = ON");
    // 32 MB hold the bet lines of a large book, so that boards need not decrypt them each time.
    // Memory is used only as far as the cache fills.
    execute("PRAGMA cache_size = -32000");
}

ResultRows Database::run(const QString &sql, const QVariantList &values)
{
    sqlite3_stmt *statement = prepare(sql);
    // SQLite would use NULL for a missing value.
    if (sqlite3_bind_parameter_count(statement) != values.size())
        raiseDatabaseFailure(u"wrong number of values for: "_s + sql);
    const auto reset = qScopeGuard([statement] {
        sqlite3_reset(statement);
        sqlite3_clear_bindings(statement); // the next call must not find these values
    });
    for (int place = 0; place < values.size(); ++place)
        check(bindValue(statement, place + 1, values[place]));

    ResultRows result;
    const int columns = sqlite3_column_count(statement);
    for (int column = 0; column < columns; ++column)
        result.columns += QString::fromUtf8(sqlite3_column_name(statement, column));
    int code = sqlite3_step(statement);
    for (; code == SQLITE_ROW; code = sqlite3_step(statement)) {
        QVariantList row;
        row.reserve(columns);
        for (int column = 0; column < columns; ++column)
            row += columnValue(statement, column);
        result.rows.emplaceBack(std::move(row));
    }
    if (code != SQLITE_DONE)
        check(code);
    return result;
}

bool Database::onlyReads(const QString &sql)
{
    return sqlite3_stmt_readonly(prepare(sql)) != 0;
}

void Database::execute(const QByteArray &sql) const
{
    check(sqlite3_exec(m_handle, sql.constData(), nullptr, nullptr, nullptr));
}

std::optional<qint32> Database::firstPageVersion() const
{
    // With writable_schema SQLite accepts a first page whose page count exceeds the file.
    execute("PRAGMA writable_schema = ON");
    sqlite3_stmt *statement = nullptr;
    int code = sqlite3_prepare_v2(m_handle, "PRAGMA user_version", -1, &statement, nullptr);
    const auto finalize = qScopeGuard([&] { sqlite3_finalize(statement); });
    if (code == SQLITE_OK)
        code = sqlite3_step(statement);
    if (code == SQLITE_NOTADB || code == SQLITE_CORRUPT)
        return std::nullopt;
    if (code != SQLITE_ROW)
        check(code);
    return sqlite3_column_int(statement, 0);
}

void Database::checkpoint(WalLength length) const
{
    const int mode =
        length == WalLength::Keep ? SQLITE_CHECKPOINT_RESTART : SQLITE_CHECKPOINT_TRUNCATE;
    check(sqlite3_wal_checkpoint_v2(m_handle, "main", mode, nullptr, nullptr));
}

void Database::copyTo(Database &target) const
{
    sqlite3_backup *copy = sqlite3_backup_init(target.m_handle, "main", m_handle, "main");
    if (copy) {
        sqlite3_backup_step(copy, -1);
        sqlite3_backup_finish(copy);
    }
    target.check(sqlite3_errcode(target.m_handle));
}

bool Database::isReadOnly() const
{
    return sqlite3_db_readonly(m_handle, "main") != 0;
}

void Database::leaveOpen()
{
    finalizeAll();
    // Never destroyed: the handles stay reachable, so they do not count as leaks.
    static auto &leftOpen = *new QList<sqlite3 *>;
    leftOpen.append(std::exchange(m_handle, nullptr));
}

sqlite3_stmt *Database::prepare(const QString &sql)
{
    constexpr qsizetype MaxPrepared = 200; // only statements with a varying text reach it
    if (m_prepared.size() >= MaxPrepared && !m_prepared.contains(sql))
        finalizeAll();
    sqlite3_stmt *&statement = m_prepared[sql];
    if (!statement) {
        const QByteArray text = sql.toUtf8();
        const char *rest = nullptr;
        check(sqlite3_prepare_v2(m_handle, text.constData(), int(text.size()) + 1, &statement,
                                 &rest));
        if (*rest != '\0') { // an inserted text must not add a second statement
            sqlite3_finalize(m_prepared.take(sql));
            raiseDatabaseFailure(QString::fromUtf8(sqlite3_errstr(SQLITE_ERROR)));
        }
    }
    return statement;
}
