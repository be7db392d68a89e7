// SPDX-License-Identifier: MIT
#include "ledger/connection.h"

#include "desktop/filesystem.h"
#include "ledger/rescue.h"
#include "ledger/salt.h"
#include "ledger/schema.h"
#include "ledger/walfile.h"
#include "ledger/walkeeper.h"
#include "runtime/runtimeerror.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryFile>

using namespace Qt::StringLiterals;

namespace {

/// The WAL lies beside the file that a link leads to.
QString realPath(const QString &path)
{
    const QString real = QFileInfo(path).canonicalFilePath();
    return real.isEmpty() ? path : real;
}

QString walOf(const QString &path)
{
    return path + u"-wal"_s;
}

/// The WAL and the folder have to be writable as well as the file. Permissions alone do not tell,
/// so both are tried; the file itself may be in use and is only asked.
void refuseUnwritable(const QString &path)
{
    QFile wal(walOf(path));
    QTemporaryFile probe(path + u"-XXXXXX.tmp"_s);
    if (!mayBeWritten(QFile::encodeName(path)) || (wal.exists() && !wal.open(QIODevice::ReadWrite))
        || !probe.open())
        raiseDatabaseFailure(Refusal::ReadOnly);
}

/// What a killed program left in the WAL. A WAL that was written for another file is renamed, so
/// that SQLite does not apply it.
WalContents leftWal(const QString &path, const QByteArray &password)
{
    if (QFileInfo(walOf(path)).size() == 0)
        return {};
    const Database held(path, Database::Access::Write);
    held.lock(); // or another process could be writing the WAL
    WalContents wal = readWal(walOf(path));
    if (belongsTo(path, held.firstBytes(SaltSize), password, wal))
        return wal;
    setAside(walOf(path));
    return {};
}

/// Looks for damage as deep as the start may take: a broken last page always, every page of a book
/// of common size. Pages of a longer book are checked as they are read. Only after a crash the whole
/// book is checked, indexes included.
void refuseDamaged(Database &file, WalKeeper &wal, const QString &path, bool walExisted,
                   bool walApplied)
{
    constexpr qint64 CheckedBytes = 4'000'000;
    const auto answer = [&](const QString &pragma) { return file.run(pragma).rows[0][0]; };
    const auto passes = [&](const QString &check) { return answer(check) == u"ok"_s; };
    const qint64 pageSize = answer(u"PRAGMA page_size"_s).toLongLong();
    const auto isTorn = [&] { return QFile(path).size() % pageSize != 0; };
    const bool isCommon = QFile(path).size() <= CheckedBytes;
    if (!walExisted && isTorn())
        raiseDatabaseFailure(Refusal::Damaged);
    if (!walApplied && isCommon && !passes(u"PRAGMA quick_check(1)"_s))
        raiseDatabaseFailure(Refusal::Damaged);
    if (walApplied && !passes(u"PRAGMA integrity_check(1)"_s)) {
        if (!passes(u"PRAGMA quick_check(1)"_s)) // does not compare indexes with their tables
            raiseDatabaseFailure(Refusal::Damaged);
        file.execute("REINDEX");
        if (!passes(u"PRAGMA integrity_check(1)"_s))
            raiseDatabaseFailure(Refusal::Damaged);
    }
    // A checkpoint repairs a torn page that the WAL has. A WAL without it leaves the page torn, and
    // the next start would refuse what this one took.
    if (isTorn())
        wal.moveIntoFile();
    if (isTorn())
        raiseDatabaseFailure(Refusal::Damaged);
}

} // namespace

/// Where the open file is, for as long as nobody moves it.
struct Connection::Place
{
    Place(const QString &givenPath, const QByteArray &key)
        : path(givenPath), realPath(::realPath(path)), password(key),
          encodedPath(QFile::encodeName(path)), encodedWal(QFile::encodeName(walOf(realPath))),
          folder(QFile::encodeName(QFileInfo(realPath).path()))
    {}

    /// To be called once SQLite has opened both.
    void remember()
    {
        file = fileIdAt(encodedPath).value_or(FileId{});
        wal = fileIdAt(encodedWal).value_or(FileId{});
        permissions = QFile::permissions(realPath);
    }

    QString path;
    QString realPath;
    QByteArray password;
    QByteArray encodedPath;
    QByteArray encodedWal;
    QByteArray folder;
    FileId file; ///< all 0 while the file is being made
    FileId wal;
    QFile::Permissions permissions;
};

Connection::Connection(std::unique_ptr<Place> place, Database::Access access)
    : m_place(std::move(place)), m_database(m_place->realPath, access)
{}

std::unique_ptr<Connection> Connection::open(const QString &path, const QByteArray &password)
{
    if (!QFileInfo(path).isFile())
        raiseDatabaseFailure(Refusal::CannotOpen);
    // SQLite would take an emptied file for a new one and delete the WAL beside it. One byte is
    // empty to it as well.
    if (QFile(path).size() <= 1)
        raiseDatabaseFailure(Refusal::NotALedger);
    auto place = std::make_unique<Place>(path, password);
    const QString real = place->realPath;
    // SQLite would speak of a disk error where the file and its folder may only be read.
    refuseUnwritable(real);
    const WalContents left = leftWal(real, password);
    const bool walExists = QFile::exists(walOf(real));
    std::unique_ptr<Connection> ledger(new Connection(std::move(place), Database::Access::Write));
    Database &file = ledger->m_database;
    try {
        const QByteArray salt = left.firstImage.left(SaltSize);
        const bool isSpoilt = !salt.isEmpty() && salt != file.firstBytes(SaltSize);
        file.setKey(isSpoilt ? keyWithSalt(password, salt) : password);
        file.configure();
        // SQLite takes an empty file with any password, and a file that it may only read; both
        // would fail later, in the middle of a ticket.
        if (file.isReadOnly())
            raiseDatabaseFailure(Refusal::ReadOnly);
        if (!isLedger(file))
            raiseDatabaseFailure(Refusal::NotALedger);
        auto wal = std::make_unique<WalKeeper>(file, left, password);
        refuseDamaged(file, *wal, real, walExists, left.holdsPages);
        ledger->m_wal = std::move(wal);
        ledger->m_place->remember();
    } catch (const RunTimeError &) {
        if (walExists) // a refused file stays untouched, and the program is about to end
            file.leaveOpen();
        throw;
    }
    return ledger;
}

std::unique_ptr<Connection> Connection::create(const QString &path, const QByteArray &password)
{
    if (QFile::exists(path))
        raiseDatabaseFailure(u"file exists: "_s + path);
    if (QFile::exists(walOf(path))) // SQLite would delete it, and a book may need it
        raiseDatabaseFailure(u"WAL of a missing file exists: "_s + path);
    std::unique_ptr<Connection> fresh(
        new Connection(std::make_unique<Place>(path, password), Database::Access::Create));
    fresh->m_database.setKey(password);
    fresh->m_database.configure();
    return fresh;
}

Connection::~Connection()
{
    if (m_lost || !isInPlace())
        m_database.leaveOpen(); // what lies at the WAL's path may be another file's
    else if (m_wal)
        resumeNext([this] { m_wal->prepareToClose(); });
}

ResultRows Connection::run(const QString &sql, const QVariantList &values)
{
    if (m_database.onlyReads(sql))
        return m_database.run(sql, values);
    prepareToWrite();
    ResultRows result = m_database.run(sql, values);
    requireOwnFile();
    return result;
}

/// Raises once the folder turned read-only. SQLite holds its WAL open and would write on, but could
/// not remove it at the end, and the next start would be refused. Cheap enough for each row.
void Connection::prepareToWrite()
{
    if (m_lost)
        raiseDatabaseFailure(Refusal::ReadOnly);
    requireOwnFile();
    if (!mayBeWritten(m_place->folder))
        raiseDatabaseFailure(Refusal::ReadOnly);
    if (m_wal)
        m_wal->prepareToWrite();
}

void Connection::moveWalIntoFile()
{
    requireOwnFile();
    m_wal->moveIntoFile();
}

void Connection::setMostWalPages(int pages)
{
    m_wal->setMostPages(pages);
}

bool Connection::isInPlace() const
{
    return m_place->file == FileId{}
           || (leadsTo(m_place->encodedPath, m_place->file)
               && leadsTo(m_place->encodedWal, m_place->wal));
}

void Connection::requireOwnFile()
{
    if (m_lost || isInPlace())
        return;
    m_lost = true;
    if (leadsTo(m_place->encodedPath, m_place->file)) // only the WAL is gone
        resumeNext([this] { m_wal->moveIntoFile(); });
    const QString name = QFileInfo(m_place->path).fileName();
    QString words = u"ไฟล์ %1 ถูกลบหรือถูกแทนที่ขณะโปรแกรมเปิดอยู่ "_s.arg(name);
    try {
        words += u"ข้อมูลทั้งหมดเก็บไว้ในไฟล์ "_s
                 + rescue(m_database, m_place->path, m_place->password, m_place->permissions);
    } catch (const RunTimeError &error) {
        words += u"และเก็บข้อมูลไว้ไม่ได้ : "_s + error.description();
    }
    throw FatalError(RunTimeError::DatabaseFailure, words);
}
