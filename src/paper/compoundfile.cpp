// SPDX-License-Identifier: MIT
#include "paper/compoundfile.h"

#include <QDataStream>
#include <QIODevice>
#include <QList>

#include <algorithm>

namespace {

constexpr qsizetype SectorSize = 512;
constexpr qsizetype SmallestStream = 4096;
constexpr qsizetype EntriesPerSector = SectorSize / 4;
constexpr qsizetype FatSectorsInHeader = 109;

// FAT entries that are not sector numbers.
constexpr quint32 DifatSector = 0xfffffffc;
constexpr quint32 FatSector = 0xfffffffd;
constexpr quint32 EndOfChain = 0xfffffffe;
constexpr quint32 Unused = 0xffffffff;

qsizetype sectorsFor(qsizetype items, qsizetype itemsPerSector)
{
    return (items + itemsPerSector - 1) / itemsPerSector;
}

/// Number and order of the sectors: the content, the directory, the FAT, and the DIFAT, which lists
/// the FAT sectors beyond the 109 that the header lists.
struct Sectors
{
    qsizetype content;
    qsizetype fat = 1;
    qsizetype difat = 0;

    explicit Sectors(qsizetype bytes) : content(sectorsFor(bytes, SectorSize))
    {
        while (fat * EntriesPerSector < all()) {
            fat = sectorsFor(all(), EntriesPerSector);
            difat =
                sectorsFor(std::max<qsizetype>(0, fat - FatSectorsInHeader), EntriesPerSector - 1);
        }
    }

    qsizetype directory() const { return content; }
    qsizetype firstFat() const { return content + 1; }
    qsizetype firstDifat() const { return firstFat() + fat; }
    qsizetype all() const { return content + 1 + fat + difat; }
};

void writeEntries(QDataStream &out, qsizetype count, quint32 value)
{
    for (qsizetype i = 0; i < count; ++i)
        out << value;
}

/// Writes the sector numbers of the FAT from the @p from-th on, padded to @p count entries.
void writeFatSectorNumbers(QDataStream &out, const Sectors &sectors, qsizetype from,
                           qsizetype count)
{
    for (qsizetype at = from; at < from + count; ++at)
        out << (at < sectors.fat ? quint32(sectors.firstFat() + at) : Unused);
}

void writeHeader(QDataStream &out, const Sectors &sectors)
{
    constexpr quint64 Signature = 0xe11ab1a1e011cfd0;
    out << Signature << quint64(0) << quint64(0); // no class id
    out << quint16(0x3e) << quint16(3) << quint16(0xfffe) << quint16(9) << quint16(6);
    out << quint16(0) << quint32(0) << quint32(0);
    out << quint32(sectors.fat) << quint32(sectors.directory()) << quint32(0);
    out << quint32(SmallestStream) << EndOfChain << quint32(0);
    out << (sectors.difat > 0 ? quint32(sectors.firstDifat()) : EndOfChain)
        << quint32(sectors.difat);
    writeFatSectorNumbers(out, sectors, 0, FatSectorsInHeader);
}

void writeEntry(QDataStream &out, const QString &name, quint8 type, quint32 child, quint32 start,
                quint64 size)
{
    constexpr qsizetype NameLength = 32;
    constexpr quint8 Black = 1;
    for (qsizetype i = 0; i < NameLength; ++i)
        out << (i < name.size() ? name[i].unicode() : char16_t(0));
    const auto nameBytes = quint16(name.isEmpty() ? 0 : (name.size() + 1) * 2);
    out << nameBytes << type << Black << Unused << Unused << child;
    writeEntries(out, 9, 0); // class id, state, times
    out << start << size;
}

void writeDirectory(QDataStream &out, const QString &name, qsizetype size)
{
    constexpr quint8 Empty = 0;
    constexpr quint8 Stream = 2;
    constexpr quint8 Root = 5;
    writeEntry(out, QStringLiteral("Root Entry"), Root, 1, EndOfChain, 0);
    writeEntry(out, name, Stream, Unused, 0, quint64(size));
    writeEntry(out, {}, Empty, Unused, 0, 0);
    writeEntry(out, {}, Empty, Unused, 0, 0);
}

void writeFat(QDataStream &out, const Sectors &sectors)
{
    for (qsizetype at = 1; at < sectors.content; ++at)
        out << quint32(at);          // the content is contiguous
    out << EndOfChain << EndOfChain; // of the content and of the directory
    writeEntries(out, sectors.fat, FatSector);
    writeEntries(out, sectors.difat, DifatSector);
    writeEntries(out, sectors.fat * EntriesPerSector - sectors.all(), Unused);
}

void writeDifat(QDataStream &out, const Sectors &sectors)
{
    for (qsizetype at = 0; at < sectors.difat; ++at) {
        const qsizetype from = FatSectorsInHeader + at * (EntriesPerSector - 1);
        writeFatSectorNumbers(out, sectors, from, EntriesPerSector - 1);
        out << (at + 1 < sectors.difat ? quint32(sectors.firstDifat() + at + 1) : EndOfChain);
    }
}

} // namespace

QByteArray compoundFile(const QString &name, QByteArray content)
{
    const qsizetype size = std::max(content.size(), SmallestStream);
    const Sectors sectors(size);
    content.append(sectors.content * SectorSize - content.size(), '\0');

    QByteArray file;
    QDataStream out(&file, QIODevice::WriteOnly);
    out.setByteOrder(QDataStream::LittleEndian);
    writeHeader(out, sectors);
    out.writeRawData(content.constData(), int(content.size()));
    writeDirectory(out, name, size);
    writeFat(out, sectors);
    writeDifat(out, sectors);
    return file;
}
