// SPDX-License-Identifier: MIT
#include "ledger/walfile.h"

#include <QFile>
#include <QtEndian>

namespace {

constexpr qsizetype HeaderSize = 32;
constexpr qsizetype FrameHeaderSize = 24;
constexpr quint32 WalMagic = 0x377f0682; ///< the lowest bit is 1 for big-endian checksums
constexpr quint32 SmallestPage = 512;
constexpr quint32 LargestPage = 65'536;

quint32 wordAt(const QByteArray &bytes, qsizetype place)
{
    return qFromBigEndian<quint32>(bytes.constData() + place);
}

/// The cumulative checksum in the WAL header and in the header of each frame.
class Checksum
{
public:
    explicit Checksum(bool bigEndian) : m_bigEndian(bigEndian) {}

    void add(QByteArrayView bytes)
    {
        for (qsizetype at = 0; at + 8 <= bytes.size(); at += 8) {
            m_one += word(bytes.data() + at) + m_two;
            m_two += word(bytes.data() + at + 4) + m_one;
        }
    }

    bool isAt(const QByteArray &bytes, qsizetype place) const
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

} // namespace

WalContents readWal(const QString &path)
{
    QFile wal(path);
    if (!wal.open(QIODevice::ReadOnly))
        return {};
    const QByteArray header = wal.read(HeaderSize);
    if (header.size() < HeaderSize || (wordAt(header, 0) & ~1U) != WalMagic)
        return {};
    Checksum sum((wordAt(header, 0) & 1U) != 0);
    sum.add(QByteArrayView(header).first(24));
    const quint32 pageSize = wordAt(header, 8);
    if (!sum.isAt(header, 24) || pageSize < SmallestPage || pageSize > LargestPage)
        return {};
    const qsizetype frameSize = FrameHeaderSize + qsizetype(pageSize);
    WalContents complete;
    WalContents read;
    for (QByteArray frame = wal.read(frameSize); frame.size() == frameSize;
         frame = wal.read(frameSize)) {
        sum.add(QByteArrayView(frame).first(8));
        sum.add(QByteArrayView(frame).sliced(FrameHeaderSize));
        // A reused WAL may end with frames written before its last restart. Their salts differ.
        const bool hasSaltOfHeader = frame.sliced(8, 8) == header.sliced(16, 8);
        if (!hasSaltOfHeader || !sum.isAt(frame, 16))
            break;
        read.hasPages = true;
        if (wordAt(frame, 0) == 1) {
            read.lastImage = frame.sliced(FrameHeaderSize);
            if (read.firstImage.isEmpty())
                read.firstImage = read.lastImage;
        }
        if (wordAt(frame, 4) != 0) // a commit frame
            complete = read;
    }
    return complete;
}
