// SPDX-License-Identifier: MIT
// The salt of the Ledger's key: the first bytes of the file, which nothing can be read without.
#pragma once

#include <QFile>

/// Mends the salt, if it is spoilt. A power cut while the journal is being moved into the file can
/// spoil the first page. All other pages come back from the journal by themselves, but the engine
/// takes the salt from the file alone. The journal's copy of the first page begins with it.
class MendedSalt
{
public:
    /// To be made before the engine opens the file, and destroyed after it has closed it: the
    /// engine's lock goes when anybody of this process closes the file.
    explicit MendedSalt(const QString &path);

    bool isMended() const { return !m_before.isEmpty(); }

    /// Gives a file that is refused the bytes back that it had.
    void putBack();

private:
    void write(const QByteArray &salt);

    QFile m_file;
    QByteArray m_before; ///< what stood in place of the salt; empty if nothing was mended
};
