// SPDX-License-Identifier: MIT
#include "ledger/salt.h"

#include <QFile>
#include <QMessageAuthenticationCode>
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

/// The engine's own way from a password to a key: PBKDF2 with HMAC-SHA1.
QByteArray derivedKey(const QByteArray &password, const QByteArray &salt)
{
    constexpr qsizetype KeySize = 32;
    constexpr int Turns = 64'000;
    QMessageAuthenticationCode code(QCryptographicHash::Sha1, password);
    const auto turned = [&code](const QByteArray &bytes) {
        code.reset();
        code.addData(bytes);
        return code.result();
    };
    QByteArray key;
    for (char block = 1; key.size() < KeySize; ++block) {
        QByteArray turn = turned(salt + QByteArray(3, '\0') + block);
        QByteArray sum = turn;
        for (int at = 1; at < Turns; ++at) {
            turn = turned(turn);
            for (qsizetype place = 0; place < sum.size(); ++place)
                sum[place] = char(sum[place] ^ turn[place]);
        }
        key += sum;
    }
    return key.first(KeySize);
}

} // namespace

QByteArray saltFromJournal(const QString &path)
{
    QFile journal(path);
    return journal.open(QIODevice::ReadOnly) ? saltInJournal(journal.readAll()) : QByteArray();
}

QByteArray keyWithSalt(const QByteArray &password, const QByteArray &salt)
{
    const bool isKey = password.startsWith("x'");
    const QByteArray key =
        isKey ? password.sliced(2).chopped(1) : derivedKey(password, salt).toHex();
    return "x'" + key + salt.toHex() + '\'';
}
