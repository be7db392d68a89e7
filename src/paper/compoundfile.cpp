// SPDX-License-Identifier: MIT
#include "paper/compoundfile.h"

#include <QDataStream>
#include <QIODevice>
#include <QList>

#include <algorithm>

namespace {

constexpr qsizetype SectorSize = 512;
constexpr qsizetype SmallestStream = 4096;
constexpr qsizetype LinksPerSector = SectorSize / 4;
constexpr qsizetype TableSectorsInHeader = 109;

// Links that are no sector's number.
constexpr quint32 ListSector = 0xfffffffc;
constexpr quint32 TableSector = 0xfffffffd;
constexpr quint32 EndOfChain = 0xfffffffe;
constexpr quint32 Unused = 0xffffffff;

qsizetype sectorsFor(qsizetype items, qsizetype itemsPerSector)
{
    return (items + itemsPerSector - 1) / itemsPerSector;
}

/// Which sectors hold what: the content, the directory, the table of links, and the list of the
/// table's sectors as far as the header has no room for it.
struct Sectors
{
    qsizetype content;
    qsizetype table = 1;
    qsizetype list = 0;

    explicit Sectors(qsizetype bytes) : content(sectorsFor(bytes, SectorSize))
    {
        while (table * LinksPerSector < all()) {
            table = sectorsFor(all(), LinksPerSector);
            list = sectorsFor(std::max<qsizetype>(0, table - TableSectorsInHeader),
                              LinksPerSector - 1);
        }
    }

    qsizetype directory() const { return content; }
    qsizetype firstTable() const { return content + 1; }
    qsizetype firstList() const { return firstTable() + table; }
    qsizetype all() const { return content + 1 + table + list; }
};

void writeLinks(QDataStream &out, qsizetype count, quint32 link)
{
    for (qsizetype i = 0; i < count; ++i)
        out << link;
}

/// Numbers of the table's sectors from the @p from-th on, filled up to @p count links.
void writeTableNumbers(QDataStream &out, const Sectors &sectors, qsizetype from, qsizetype count)
{
    for (qsizetype at = from; at < from + count; ++at)
        out << (at < sectors.table ? quint32(sectors.firstTable() + at) : Unused);
}

void writeHeader(QDataStream &out, const Sectors &sectors)
{
    constexpr quint64 Mark = 0xe11ab1a1e011cfd0;
    out << Mark << quint64(0) << quint64(0); // no class
    out << quint16(0x3e) << quint16(3) << quint16(0xfffe) << quint16(9) << quint16(6);
    out << quint16(0) << quint32(0) << quint32(0);
    out << quint32(sectors.table) << quint32(sectors.directory()) << quint32(0);
    out << quint32(SmallestStream) << EndOfChain << quint32(0);
    out << (sectors.list > 0 ? quint32(sectors.firstList()) : EndOfChain) << quint32(sectors.list);
    writeTableNumbers(out, sectors, 0, TableSectorsInHeader);
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
    writeLinks(out, 9, 0); // class, state, times
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

void writeTable(QDataStream &out, const Sectors &sectors)
{
    for (qsizetype at = 1; at < sectors.content; ++at)
        out << quint32(at);          // each sector of the content is followed by the next
    out << EndOfChain << EndOfChain; // the content's last, the directory
    writeLinks(out, sectors.table, TableSector);
    writeLinks(out, sectors.list, ListSector);
    writeLinks(out, sectors.table * LinksPerSector - sectors.all(), Unused);
}

void writeList(QDataStream &out, const Sectors &sectors)
{
    for (qsizetype at = 0; at < sectors.list; ++at) {
        const qsizetype from = TableSectorsInHeader + at * (LinksPerSector - 1);
        writeTableNumbers(out, sectors, from, LinksPerSector - 1);
        out << (at + 1 < sectors.list ? quint32(sectors.firstList() + at + 1) : EndOfChain);
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
    writeTable(out, sectors);
    writeList(out, sectors);
    return file;
}
