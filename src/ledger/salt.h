// SPDX-License-Identifier: MIT
// The salt of the Ledger's key: the first bytes of the file, which nothing can be read without.
#pragma once

#include <QByteArray>
#include <QString>

/// Mends the salt for as long as it lives, or for good. A power cut while the journal is being
/// moved into the file can spoil the first page. All other pages come back from the journal by
/// themselves, but the engine takes the salt from the file alone. The journal's copy of the first
/// page, if it holds a valid one, begins with the salt.
class MendedSalt
{
public:
    explicit MendedSalt(const QString &path);
    ~MendedSalt();
    Q_DISABLE_COPY_MOVE(MendedSalt)

    /// To be called once the Ledger opened; else the file gets back the bytes that it had.
    void keep() { m_before.clear(); }

private:
    QString m_path;
    QByteArray m_before; ///< what stood in place of the salt; empty if nothing was mended
};
