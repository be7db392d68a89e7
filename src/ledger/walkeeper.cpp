// SPDX-License-Identifier: MIT
#include "ledger/walkeeper.h"

#include "ledger/salt.h"
#include "ledger/walfile.h"

#include <QRandomGenerator>
#include <QTemporaryFile>

#include <limits>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

/// Returns the id of a file without its WAL.
std::optional<qint32> idInFile(const QString &path, const QByteArray &password)
{
    const Database file(path, Database::Access::Immutable);
    file.setKey(password);
    return file.firstPageVersion();
}

/// Returns the id in a copy of page 1. The page begins with the salt, so it can be opened as a
/// file.
std::optional<qint32> idInPage(const QByteArray &page, const QByteArray &password)
{
    QTemporaryFile file;
    if (!file.open() || file.write(page) != page.size() || !file.flush())
        raiseDatabaseFailure(file.errorString());
    const QString path = file.fileName();
    file.close();
    return idInFile(path, password);
}

} // namespace

bool belongsTo(const QString &path, const QByteArray &salt, const QByteArray &password,
               const WalContents &wal)
{
    if (wal.firstImage.isEmpty()) // written by a version without ids
        return true;
    const auto id = idInFile(path, password);
    if (!id)
        return true;
    return wal.firstImage.startsWith(salt)
           && (idInPage(wal.firstImage, password) == id || idInPage(wal.lastImage, password) == id);
}

WalKeeper::WalKeeper(Database &file, const WalContents &left, const QByteArray &password)
    : m_file(file), m_isEmpty(!left.hasPages), m_hasFirstId(!left.firstImage.isEmpty()),
      m_hasNextId(left.firstImage != left.lastImage && idInPage(left.firstImage, password) != id())
{}

qint32 WalKeeper::id() const
{
    return m_file.run(u"PRAGMA user_version"_s).rows[0][0].toInt();
}

void WalKeeper::writeId(qint32 id)
{
    m_isEmpty = false;
    m_file.execute("PRAGMA user_version = " + QByteArray::number(id));
}

void WalKeeper::writeNextId()
{
    if (!m_hasFirstId)
        writeId(id());
    m_hasFirstId = true;
    if (!m_hasNextId)
        writeId(qint32(QRandomGenerator::system()->bounded(1, std::numeric_limits<int>::max())));
    m_hasNextId = true;
}

void WalKeeper::startOver(Database::WalLength length)
{
    writeNextId();
    m_file.checkpoint(length);
    m_isEmpty = true;
    m_hasFirstId = false;
    m_hasNextId = false;
    m_isOfSession = false;
}

void WalKeeper::prepareToWrite()
{
    if (m_isOfSession && m_file.walPages() < m_maxPages)
        return;
    startOver(Database::WalLength::Keep);
    writeId(id());
    m_hasFirstId = true;
    m_isOfSession = true;
}

void WalKeeper::moveIntoFile()
{
    if (!m_isEmpty)
        startOver(Database::WalLength::Truncate);
}

void WalKeeper::prepareToClose()
{
    if (!m_isEmpty)
        writeNextId();
}
