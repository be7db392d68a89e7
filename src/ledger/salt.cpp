// SPDX-License-Identifier: MIT
#include "ledger/salt.h"

#include <QtEndian>

namespace {

constexpr qsizetype SaltSize = 16;
constexpr qsizetype HeaderSize = 32;
constexpr qsizetype FrameHeaderSize = 24;
constexpr quint32 JournalMark = 0x377f0682; ///< its last bit tells the byte order of the sums

quint32 wordAt(const QByteArray &bytes, qsizetype place)
{
    return qFromBigEndian<quint32>(bytes.constData() + place);
}

/// The running sum that the journal's header and each of its frames carry.
class Sum
{
public:
    explicit Sum(bool bigEndian) : m_bigEndian(bigEndian) {}

    void add(QByteArrayView bytes)
    {
        for (qsizetype at = 0; at + 8 <= bytes.size(); at += 8) {
            m_one += word(bytes.data() + at) + m_two;
            m_two += word(bytes.data() + at + 4) + m_one;
        }
    }

    bool standsAt(const QByteArray &bytes, qsizetype place) const
    {
        return wordAt(bytes, place) == m_one && wordAt(bytes, place + 4) == m_two;
    }

private:
    quint32 word(const char *from) const
    {
        return m_bigEndian ? qFromBigEndian<quint32>(from) : qFromLittleEndian<quint32>(from);
    }

    bool m_bigEndian;
    quint32 m_one = 0;
    quint32 m_two = 0;
};

/// The salt as the journal has it in a page of a complete statement; empty if it has none.
QByteArray saltInJournal(const QByteArray &journal)
{
    if (journal.size() < HeaderSize || (wordAt(journal, 0) & ~1U) != JournalMark)
        return {};
    Sum sum((wordAt(journal, 0) & 1U) != 0);
    sum.add(QByteArrayView(journal).first(24));
    const qsizetype pageSize = wordAt(journal, 8);
    if (!sum.standsAt(journal, 24) || pageSize < SaltSize)
        return {};
    QByteArray salt;
    const qsizetype frameSize = FrameHeaderSize + pageSize;
    for (qsizetype at = HeaderSize; at + frameSize <= journal.size(); at += frameSize) {
        sum.add(QByteArrayView(journal).sliced(at, 8));
        sum.add(QByteArrayView(journal).sliced(at + FrameHeaderSize, pageSize));
        const bool ofThisRound = journal.mid(at + 8, 8) == journal.mid(16, 8);
        if (!ofThisRound || !sum.standsAt(journal, at + 16))
            break;
        if (wordAt(journal, at) == 1)
            salt = journal.mid(at + FrameHeaderSize, SaltSize);
        if (wordAt(journal, at + 4) != 0 && !salt.isEmpty()) // ends a statement
            return salt;
    }
    return {};
}

} // namespace

MendedSalt::MendedSalt(const QString &path) : m_file(path)
{
    QFile journal(path + QStringLiteral("-wal"));
    constexpr auto Existing =
        QIODevice::ReadWrite | QIODevice::ExistingOnly | QIODevice::Unbuffered;
    const QByteArray salt =
        journal.open(QIODevice::ReadOnly) ? saltInJournal(journal.readAll()) : QByteArray();
    if (salt.isEmpty() || !m_file.open(Existing))
        return;
    const QByteArray found = m_file.read(SaltSize);
    if (found.size() != SaltSize || found == salt)
        return;
    m_before = found;
    write(salt);
}

void MendedSalt::putBack()
{
    if (!m_before.isEmpty())
        write(m_before);
}

void MendedSalt::write(const QByteArray &salt)
{
    if (m_file.seek(0))
        m_file.write(salt); // if it fails the engine refuses the file as it would have done
}
