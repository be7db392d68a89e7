// SPDX-License-Identifier: MIT
// The only file that speaks to the database engine.
#include "ledger/connection.h"

#include "ledger/collation.h"
#include "ledger/salt.h"
#include "ledger/schema.h"
#include "runtime/runtimeerror.h"

#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QScopeGuard>
#include <QTemporaryFile>

#define SQLITE_HAS_CODEC
#include <sqlite3.h>

#ifndef Q_OS_WIN
#include <fcntl.h>
#include <unistd.h>
#endif

using namespace Qt::StringLiterals;

namespace {

[[noreturn]] void raiseFailure(const QString &words)
{
    throw RunTimeError(RunTimeError::DatabaseFailure, words);
}

[[noreturn]] void raiseFailure(int code)
{
    raiseFailure(QString::fromUtf8(sqlite3_errstr(code)));
}

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

/// What the rights of a file or folder say. Under Windows those of a folder are not told so.
bool mayBeWritten(const QByteArray &path)
{
#ifdef Q_OS_WIN
    const QFileInfo file(QFile::decodeName(path));
    return !file.isFile() || file.isWritable();
#else
    return faccessat(AT_FDCWD, path.constData(), W_OK, AT_EACCESS) == 0;
#endif
}

/// The journal lies beside the file that a link leads to.
QString realPath(const QString &path)
{
    const QString real = QFileInfo(path).canonicalFilePath();
    return real.isEmpty() ? path : real;
}

QString journalOf(const QString &path)
{
    return path + u"-wal"_s;
}

} // namespace

/// The engine's handle and the statements that it has prepared once.
struct Connection::Engine
{
    explicit Engine(const QString &filePath)
        : path(realPath(filePath)), folder(QFile::encodeName(QFileInfo(path).path()))
    {}
    Q_DISABLE_COPY_MOVE(Engine)

    ~Engine()
    {
        finalizeAll();
        sqlite3_close(handle);
    }

    void finalizeAll()
    {
        for (sqlite3_stmt *statement : std::as_const(prepared))
            sqlite3_finalize(statement);
        prepared.clear();
    }

    void check(int code) const
    {
        if (code != SQLITE_OK)
            raiseFailure(handle ? QString::fromUtf8(sqlite3_errmsg(handle))
                                : QString::fromUtf8(sqlite3_errstr(code)));
    }

    void openFile(int flags, const QByteArray &password)
    {
        journalWaited = QFile::exists(journalOf(path));
        // One thread works on it, so no call needs to lock.
        check(sqlite3_open_v2(path.toUtf8().constData(), &handle, flags | SQLITE_OPEN_NOMUTEX,
                              nullptr));
        const QByteArray salt = saltFromJournal(journalOf(path));
        saltMended = !salt.isEmpty() && salt != firstBytes(salt.size());
        const QByteArray key = saltMended ? keyWithSalt(password, salt) : password;
        check(sqlite3_key(handle, key.constData(), int(key.size())));
        check(sqlite3_create_collation(handle, AnyCaseCollation, SQLITE_UTF8, nullptr,
                                       compareUtf8<compareAnyCase>));
        check(sqlite3_create_collation(handle, ThaiCollation, SQLITE_UTF8, nullptr,
                                       compareUtf8<compareThai>));
        // Newer engines default to another file format; this one is read everywhere.
        execute("PRAGMA cipher_compatibility = 3");
        // Exclusive from the first read on, so no file for shared memory is needed beside it.
        execute("PRAGMA locking_mode = EXCLUSIVE");
        execute("PRAGMA synchronous = FULL");
        execute("PRAGMA secure_delete = ON");
        // Room for the lines of a big book, so that boards need not decrypt them again and again.
        // Only a book of that size fills it.
        execute("PRAGMA cache_size = -32000");
    }

    /// What the file begins with, without its decryption; empty if it cannot be read. Read through
    /// the engine, whose lock would go if the file were opened and closed once more here.
    QByteArray firstBytes(qsizetype count) const
    {
        sqlite3_file *file = nullptr;
        QByteArray bytes(count, '\0');
        if (sqlite3_file_control(handle, "main", SQLITE_FCNTL_FILE_POINTER, &file) != SQLITE_OK
            || file->pMethods->xRead(file, bytes.data(), int(count), 0) != SQLITE_OK)
            return {};
        return bytes;
    }

    void execute(const char *sql) const
    {
        check(sqlite3_exec(handle, sql, nullptr, nullptr, nullptr));
    }

    /// Lets go of a file that is refused. Closing would move a waiting journal into the file,
    /// which must stay untouched, so with a journal the handle is left open; the program is
    /// about to end.
    void abandon()
    {
        if (!journalWaited)
            return;
        finalizeAll();
        // Never destroyed, so that what is left open stays known to the end of the process.
        static auto &abandoned = *new QList<sqlite3 *>;
        abandoned.append(std::exchange(handle, nullptr));
    }

    sqlite3_stmt *prepare(const QString &sql)
    {
        constexpr qsizetype MostPrepared = 200; // few statements have a text that varies
        if (prepared.size() >= MostPrepared && !prepared.contains(sql))
            finalizeAll();
        sqlite3_stmt *&statement = prepared[sql];
        if (!statement) {
            const QByteArray text = sql.toUtf8();
            const char *rest = nullptr;
            check(sqlite3_prepare_v2(handle, text.constData(), int(text.size()) + 1, &statement,
                                     &rest));
            if (*rest != '\0') { // a text spliced in must never smuggle in a second statement
                sqlite3_finalize(prepared.take(sql));
                raiseFailure(SQLITE_ERROR);
            }
        }
        return statement;
    }

    /// Raises once the folder turned read-only. The engine holds its journal open and would write
    /// on, but could not remove it at the end, and nobody would learn of it before the next start
    /// is refused. Cheap enough for each row.
    void requireWritableFolder() const
    {
        if (!mayBeWritten(folder))
            raiseFailure(SQLITE_READONLY);
    }

    QString path;
    QByteArray folder;          ///< the one that the file lies in
    bool journalWaited = false; ///< the last owner was killed and left a journal
    bool saltMended = false;    ///< the key was made with the salt that the journal has
    sqlite3 *handle = nullptr;
    QHash<QString, sqlite3_stmt *> prepared;
};

namespace {

/// The journal and the folder have to take writing as well as the file. Rights alone do not tell,
/// so both are tried; the file itself may be in use and is only asked.
void refuseUnwritable(const QString &path)
{
    QFile journal(journalOf(path));
    QTemporaryFile probe(path + u"-XXXXXX.tmp"_s);
    if (!mayBeWritten(QFile::encodeName(path))
        || (journal.exists() && !journal.open(QIODevice::ReadWrite)) || !probe.open())
        raiseFailure(SQLITE_READONLY);
}

/// Looks for damage as deep as the start may take: a broken last page always, every page of a book
/// of common size. Pages of a longer book are checked as they are read.
/// A book whose salt was mended is always checked whole: its journal may be that of another.
void refuseDamaged(Connection &ledger, const QString &path, bool journalWaited, bool saltMended)
{
    constexpr qint64 CheckedBytes = 4'000'000;
    const auto answer = [&](const QString &pragma) { return ledger.run(pragma).rows[0][0]; };
    const qint64 pageSize = answer(u"PRAGMA page_size"_s).toLongLong();
    const auto isTorn = [&] { return QFile(path).size() % pageSize != 0; };
    if (!journalWaited && isTorn())
        raiseFailure(SQLITE_CORRUPT);
    const bool checked = saltMended || QFile(path).size() <= CheckedBytes;
    if (checked && answer(u"PRAGMA quick_check(1)"_s) != u"ok"_s)
        raiseFailure(SQLITE_CORRUPT);
    // A journal mends a torn page once it is moved into the file. One that holds nothing leaves it
    // torn, and the next start would refuse what this one took.
    if (isTorn())
        ledger.run(u"PRAGMA wal_checkpoint"_s);
    if (isTorn())
        raiseFailure(SQLITE_CORRUPT);
}

} // namespace

Connection::Connection(std::unique_ptr<Engine> engine) : m_engine(std::move(engine)) {}

Connection::~Connection() = default;

std::unique_ptr<Connection> Connection::open(const QString &path, const QByteArray &password)
{
    if (!QFileInfo(path).isFile())
        raiseFailure(SQLITE_CANTOPEN);
    std::unique_ptr<Connection> ledger(new Connection(std::make_unique<Engine>(path)));
    Engine &engine = *ledger->m_engine;
    try {
        // The engine would take an emptied file for a new one and delete the journal beside it. One
        // byte is empty to it as well.
        if (QFile(path).size() <= 1)
            raiseFailure(SQLITE_NOTADB);
        // The engine would speak of a disk error where the file and its folder may only be read.
        refuseUnwritable(engine.path);
        engine.openFile(SQLITE_OPEN_READWRITE, password);
        // The engine takes an empty file with any password, and a file that it may only read;
        // both would fail later, in the middle of a ticket.
        if (sqlite3_db_readonly(engine.handle, "main") != 0)
            raiseFailure(SQLITE_READONLY);
        if (!isLedger(*ledger))
            raiseFailure(SQLITE_NOTADB);
        refuseDamaged(*ledger, engine.path, engine.journalWaited, engine.saltMended);
    } catch (const RunTimeError &) {
        engine.abandon();
        throw;
    }
    return ledger;
}

std::unique_ptr<Connection> Connection::create(const QString &path, const QByteArray &password)
{
    if (QFile::exists(path))
        raiseFailure(u"file exists: "_s + path);
    if (QFile::exists(journalOf(path))) // the engine would delete it, and a book may need it
        raiseFailure(u"journal of a missing file exists: "_s + path);
    std::unique_ptr<Connection> fresh(new Connection(std::make_unique<Engine>(path)));
    fresh->m_engine->openFile(SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, password);
    return fresh;
}

ResultRows Connection::run(const QString &sql, const QVariantList &values)
{
    sqlite3_stmt *statement = m_engine->prepare(sql);
    if (sqlite3_stmt_readonly(statement) == 0)
        m_engine->requireWritableFolder();
    const auto reset = qScopeGuard([statement] { sqlite3_reset(statement); });
    for (int place = 0; place < values.size(); ++place)
        m_engine->check(bindValue(statement, place + 1, values[place]));

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
        m_engine->check(code);
    return result;
}

int Connection::changes() const
{
    return sqlite3_total_changes(m_engine->handle);
}
