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

/// Resolves symbolic links: SQLite keeps the WAL beside the real file.
QString realPath(const QString &path)
{
    const QString real = QFileInfo(path).canonicalFilePath();
    return real.isEmpty() ? path : real;
}

QString walOf(const QString &path)
{
    return path + u"-wal"_s;
}

/// Checks that the file, its WAL and its folder can be written. Permissions alone do not say so for
/// sure. So this opens the WAL and makes a temporary file in the folder. For the file itself, which
/// may be in use, it checks the permissions only.
void refuseUnwritable(const QString &path)
{
    QFile wal(walOf(path));
    QTemporaryFile probe(path + u"-XXXXXX.tmp"_s);
    if (!mayBeWritten(QFile::encodeName(path)) || (wal.exists() && !wal.open(QIODevice::ReadWrite))
        || !probe.open())
        raiseDatabaseFailure(Refusal::ReadOnly);
}

/// Returns what a killed program left in the WAL. Renames a WAL that was written for another file,
/// so that SQLite does not apply it.
WalContents leftWal(const QString &path, const QByteArray &password)
{
    if (QFileInfo(walOf(path)).size() == 0)
        return {};
    const Database locked(path, Database::Access::Write);
    locked.lock(); // another process must not write the WAL meanwhile
    WalContents wal = readWal(walOf(path));
    if (belongsTo(path, locked.firstBytes(SaltSize), password, wal))
        return wal;
    renameForeignWal(walOf(path));
    return {};
}

/// Refuses a damaged file. To keep the start fast, the pages of a long file are not checked here
/// but as they are read; an incomplete last page is always found. After a crash (@p walApplied) the
/// whole file is checked, and indexes that do not match their tables are rebuilt.
void refuseDamaged(Database &file, WalKeeper &wal, const QString &path, bool walExisted,
                   bool walApplied)
{
    constexpr qint64 MaxCheckedSize = 4'000'000;
    const auto result = [&](const QString &pragma) { return file.run(pragma).rows[0][0]; };
    const auto passes = [&](const QString &check) { return result(check) == u"ok"_s; };
    const qint64 pageSize = result(u"PRAGMA page_size"_s).toLongLong();
    const auto isTorn = [&] { return QFile(path).size() % pageSize != 0; };
    const bool isShort = QFile(path).size() <= MaxCheckedSize;
    if (!walExisted && isTorn())
        raiseDatabaseFailure(Refusal::Damaged);
    if (!walApplied && isShort && !passes(u"PRAGMA quick_check(1)"_s))
        raiseDatabaseFailure(Refusal::Damaged);
    if (walApplied && !passes(u"PRAGMA integrity_check(1)"_s)) {
        if (!passes(u"PRAGMA quick_check(1)"_s)) // damage beyond mismatched indexes
            raiseDatabaseFailure(Refusal::Damaged);
        file.execute("REINDEX");
        if (!passes(u"PRAGMA integrity_check(1)"_s))
            raiseDatabaseFailure(Refusal::Damaged);
    }
    // A checkpoint repairs an incomplete last page if the WAL contains it. If not, the next start
    // would refuse the file, so this one does too.
    if (isTorn())
        wal.moveIntoFile();
    if (isTorn())
        raiseDatabaseFailure(Refusal::Damaged);
}

} // namespace

/// The paths of the open file and its WAL, and the ids of the files they led to when opened.
struct Connection::Place
{
    Place(const QString &givenPath, const QByteArray &key)
        : path(givenPath), realPath(::realPath(path)), password(key),
          encodedPath(QFile::encodeName(path)), encodedWal(QFile::encodeName(walOf(realPath))),
          folder(QFile::encodeName(QFileInfo(realPath).path()))
    {}

    /// Stores the ids. To be called once SQLite has opened both files.
    void remember()
    {
        file = fileIdAt(encodedPath).value_or(FileId{});
        wal = fileIdAt(encodedWal).value_or(FileId{});
    }

    QString path;
    QString realPath;
    QByteArray password;
    QByteArray encodedPath;
    QByteArray encodedWal;
    QByteArray folder;
    FileId file; ///< zeros if unknown or in a Connection of create(): not checked
    FileId wal;
};

Connection::Connection(std::unique_ptr<Place> place, Database::Access access)
    : m_place(std::move(place)), m_database(m_place->realPath, access)
{}

std::unique_ptr<Connection> Connection::open(const QString &path, const QByteArray &password)
{
    if (!QFileInfo(path).isFile())
        raiseDatabaseFailure(Refusal::CannotOpen);
    // SQLite treats a file of 0 or 1 bytes as a new one and would delete the WAL beside it.
    if (QFile(path).size() <= 1)
        raiseDatabaseFailure(Refusal::NotALedger);
    auto place = std::make_unique<Place>(path, password);
    const QString real = place->realPath;
    // For a read-only file or folder SQLite itself would report a disk error.
    refuseUnwritable(real);
    const WalContents left = leftWal(real, password);
    const bool walExists = QFile::exists(walOf(real));
    std::unique_ptr<Connection> ledger(new Connection(std::move(place), Database::Access::Write));
    Database &file = ledger->m_database;
    try {
        const QByteArray salt = left.firstImage.left(SaltSize);
        const bool isSaltDamaged = !salt.isEmpty() && salt != file.firstBytes(SaltSize);
        file.setKey(isSaltDamaged ? keyWithSalt(password, salt) : password);
        file.configure();
        // SQLite opens a read-only file as well, and an empty one with any password. Both would
        // fail only later, during the save of a ticket.
        if (file.isReadOnly())
            raiseDatabaseFailure(Refusal::ReadOnly);
        if (!isLedger(file))
            raiseDatabaseFailure(Refusal::NotALedger);
        makePrivate(QFile::encodeName(real));
        makePrivate(QFile::encodeName(walOf(real)));
        auto wal = std::make_unique<WalKeeper>(file, left, password);
        refuseDamaged(file, *wal, real, walExists, left.hasPages);
        ledger->m_wal = std::move(wal);
        ledger->m_place->remember();
    } catch (const RunTimeError &) {
        if (walExists) // closing would move the WAL into the refused file
            file.leaveOpen();
        throw;
    }
    return ledger;
}

std::unique_ptr<Connection> Connection::create(const QString &path, const QByteArray &password)
{
    if (QFile::exists(path))
        raiseDatabaseFailure(u"file exists: "_s + path);
    if (QFile::exists(walOf(path))) // SQLite would delete it, with bets of a file that was moved
        raiseDatabaseFailure(u"WAL of a missing file exists: "_s + path);
    QFile file(path);
    if (!createPrivate(file)) // SQLite would create it for all users to read
        raiseDatabaseFailure(Refusal::CannotOpen);
    file.close();
    std::unique_ptr<Connection> fresh(
        new Connection(std::make_unique<Place>(path, password), Database::Access::Write));
    fresh->m_database.setKey(password);
    fresh->m_database.configure();
    return fresh;
}

Connection::~Connection()
{
    if (m_lost || !isInPlace())
        m_database.leaveOpen(); // the WAL at the path may belong to another file
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

/// Throws if the folder has become read-only. SQLite could still write to the open WAL, but could
/// not delete it on closing, and the next start would be refused.
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

void Connection::setMaxWalPages(int pages)
{
    m_wal->setMaxPages(pages);
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
    QString message = u"ไฟล์ %1 ถูกลบหรือถูกแทนที่ขณะโปรแกรมเปิดอยู่ "_s.arg(name);
    try {
        message += u"ข้อมูลทั้งหมดเก็บไว้ในไฟล์ "_s + rescue(m_database, m_place->path, m_place->password);
    } catch (const RunTimeError &error) {
        message += u"และเก็บข้อมูลไว้ไม่ได้ : "_s + error.description();
    }
    throw FatalError(RunTimeError::DatabaseFailure, message);
}
