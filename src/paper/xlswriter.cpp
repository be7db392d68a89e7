// SPDX-License-Identifier: MIT
#include "paper/xlswriter.h"

#include "paper/compoundfile.h"

#include <QDataStream>
#include <QHash>
#include <QIODevice>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

/// Record types of BIFF8.
enum Record : quint16 {
    Eof = 0x0a,
    ExternSheet = 0x17,
    Name = 0x18,
    LeftMargin = 0x26,
    RightMargin = 0x27,
    TopMargin = 0x28,
    BottomMargin = 0x29,
    Font = 0x31,
    Continue = 0x3c,
    Window1 = 0x3d,
    Pane = 0x41,
    CodePage = 0x42,
    DefColWidth = 0x55,
    ColInfo = 0x7d,
    WsBool = 0x81,
    BoundSheet = 0x85,
    Setup = 0xa1,
    Xf = 0xe0,
    Sst = 0xfc,
    LabelSst = 0xfd,
    SupBook = 0x01ae,
    Dimensions = 0x0200,
    Number = 0x0203,
    Window2 = 0x023e,
    Style = 0x0293,
    Bof = 0x0809,
};

constexpr qsizetype LongestRecord = 8224;
constexpr qsizetype LongestText = 4000;
constexpr int TwipsPerInch = 1440;
constexpr int PlainFont = 0;
constexpr int BoldFont = 1;

/// A little-endian byte sequence.
class Bytes
{
public:
    template<typename... Values>
    explicit Bytes(Values... values) : m_out(&m_bytes, QIODevice::WriteOnly)
    {
        m_out.setByteOrder(QDataStream::LittleEndian);
        (m_out << ... << values);
    }

    template<typename Value>
    Bytes &operator<<(Value value)
    {
        m_out << value;
        return *this;
    }

    Bytes &utf16(const QString &text)
    {
        for (const QChar letter : text)
            m_out << letter.unicode();
        return *this;
    }

    const QByteArray &all() const { return m_bytes; }

private:
    QByteArray m_bytes;
    QDataStream m_out;
};

/// Appends a text with a one-byte length, in UTF-16.
Bytes &shortText(Bytes &bytes, const QString &text)
{
    constexpr quint8 Unicode = 1;
    return (bytes << quint8(text.size()) << Unicode).utf16(text);
}

/// The shared string table of a workbook. Stores each text once.
class TextTable
{
public:
    /// Returns the index of @p text, which is added if it is new.
    quint32 indexOf(const QString &text)
    {
        ++m_uses;
        const auto found = m_indexes.constFind(text);
        if (found != m_indexes.constEnd())
            return *found;
        m_texts += text.left(LongestText);
        return m_indexes[text] = quint32(m_texts.size() - 1);
    }

    /// Returns the table's content in pieces that fit into a record. No text is split.
    QList<QByteArray> pieces() const
    {
        constexpr quint8 Unicode = 1;
        QList<QByteArray> pieces{Bytes(m_uses, quint32(m_texts.size())).all()};
        for (const QString &text : m_texts) {
            const QByteArray one = Bytes(quint16(text.size()), Unicode).utf16(text).all();
            if (pieces.last().size() + one.size() > LongestRecord)
                pieces += QByteArray();
            pieces.last() += one;
        }
        return pieces;
    }

private:
    QHash<QString, quint32> m_indexes;
    QList<QString> m_texts;
    quint32 m_uses = 0;
};

/// The cell formats (XF records): alignment and weight of a text or of an amount.
class CellFormats
{
public:
    /// BIFF8 requires fifteen style formats and a default cell format before all others.
    static constexpr quint16 Reserved = 16;
    static constexpr quint16 Count = Reserved + 12;

    static quint16 of(const SheetCell &cell)
    {
        const int right = cell.alignment & Qt::AlignRight ? 2 : 0;
        const int side = cell.alignment & Qt::AlignHCenter ? 1 : right;
        return quint16(Reserved + side * 4 + (cell.bold ? 2 : 0)
                       + (cell.kind == SheetCell::Amount));
    }

    static QByteArray record(quint16 format)
    {
        constexpr quint16 General = 0;
        constexpr quint16 ThousandsCommas = 3;
        constexpr quint16 StyleFormat = 0xfff5;
        constexpr quint16 CellFormat = 1;
        constexpr quint8 Bottom = 0x20;
        constexpr quint8 Middle = 0x10;
        const bool reserved = format < Reserved;
        const int variant = reserved ? 0 : format - Reserved;
        const auto side = quint8(reserved ? 0 : variant / 4 + 1);
        return Bytes(quint16(variant & 2 ? BoldFont : PlainFont),
                     quint16(variant & 1 ? ThousandsCommas : General),
                     quint16(format < Reserved - 1 ? StyleFormat : CellFormat),
                     quint8(side | (reserved ? Bottom : Middle)), quint8(0), quint8(0),
                     quint8(reserved ? 0 : 0xf8), quint32(0), quint32(0), quint16(0x20c0))
            .all();
    }
};

class Workbook
{
public:
    explicit Workbook(const Sheet &sheet) : m_sheet(sheet) {}

    QByteArray content()
    {
        const QByteArray cells = sheetPart(); // fills m_texts
        // The globals contain the offset of the sheet, which is their own length. Measure it first.
        const QByteArray globals = globalPart(0);
        return globalPart(quint32(globals.size())) + cells;
    }

private:
    void add(Record record, const QByteArray &content)
    {
        m_part += Bytes(quint16(record), quint16(content.size())).all() + content;
    }

    template<typename... Values>
    void add(Record record, Values... values)
    {
        add(record, Bytes(values...).all());
    }

    void begin(quint16 kind)
    {
        m_part.clear();
        add(Bof, quint16(0x0600), kind, quint16(0x0dbb), quint16(0x07cc), quint32(0), quint32(6));
    }

    QByteArray end()
    {
        add(Eof, QByteArray());
        return std::exchange(m_part, {});
    }

    QByteArray globalPart(quint32 sheetBegin)
    {
        constexpr quint16 Globals = 5;
        constexpr quint16 Utf16 = 1200;
        begin(Globals);
        add(CodePage, Utf16);
        add(Window1, quint16(360), quint16(270), quint16(18000), quint16(9000), quint16(0x38),
            quint16(0), quint16(0), quint16(1), quint16(600));
        for (const int font : {PlainFont, BoldFont, PlainFont, PlainFont}) // Excel requires four
            addFont(font == BoldFont);
        for (quint16 format = 0; format < CellFormats::Count; ++format)
            add(Xf, CellFormats::record(format));
        add(Style, quint16(0x8000), quint8(0), quint8(0xff));
        Bytes bound(sheetBegin, quint16(0));
        add(BoundSheet, shortText(bound, m_sheet.name).all());
        addPrintTitles();
        const QList<QByteArray> texts = m_texts.pieces();
        for (const QByteArray &piece : texts)
            add(&piece == &texts.first() ? Sst : Continue, piece);
        return end();
    }

    void addFont(bool bold)
    {
        constexpr quint16 TenPoints = 200;
        constexpr quint16 Automatic = 0x7fff;
        Bytes font(TenPoints, quint16(bold), Automatic, quint16(bold ? 700 : 400), quint16(0),
                   quint32(0));
        add(Font, shortText(font, u"Tahoma"_s).all());
    }

    /// Adds the built-in name that repeats the header rows on each printed page.
    void addPrintTitles()
    {
        constexpr quint16 BuiltIn = 0x20;
        constexpr quint8 PrintTitles = 7;
        constexpr quint8 Area = 0x3b;
        constexpr quint16 AreaLength = 11;
        if (m_sheet.headerRows == 0)
            return;
        add(SupBook, quint16(1), quint16(0x0401));
        add(ExternSheet, quint16(1), quint16(0), quint16(0), quint16(0));
        add(Name, BuiltIn, quint8(0), quint8(1), AreaLength, quint16(0), quint16(1), quint32(0),
            quint8(0), PrintTitles, Area, quint16(0), quint16(0), quint16(m_sheet.headerRows - 1),
            quint16(0), quint16(255));
    }

    QByteArray sheetPart()
    {
        constexpr quint16 Worksheet = 0x10;
        begin(Worksheet);
        addPrintSetup();
        add(DefColWidth, quint16(8));
        for (qsizetype column = 0; column < m_sheet.columnWidths.size(); ++column)
            addColumn(quint16(column), m_sheet.columnWidths[column]);
        const int lastRow = m_sheet.cells.isEmpty() ? -1 : m_sheet.cells.last().row;
        add(Dimensions, quint32(0), quint32(lastRow + 1), quint16(0),
            quint16(m_sheet.columnWidths.size()), quint16(0));
        for (const SheetCell &cell : m_sheet.cells)
            addCell(cell);
        addView();
        return end();
    }

    void addPrintSetup()
    {
        constexpr quint16 FitToWidth = 0x05c1; // and the default flags
        constexpr quint16 A4 = 9;
        constexpr quint16 Dots = 600;
        const double inches = double(m_sheet.margin) / TwipsPerInch;
        add(WsBool, FitToWidth);
        for (const Record margin : {LeftMargin, RightMargin, TopMargin, BottomMargin})
            add(margin, inches);
        add(Setup, A4, quint16(100), quint16(1), quint16(1), quint16(0),
            quint16(m_sheet.landscape ? 0 : 2), Dots, Dots, inches, inches, quint16(1));
    }

    void addColumn(quint16 column, int twips)
    {
        constexpr int TwipsPerLetter = 105; // in the plain font
        add(ColInfo, column, column, quint16(twips * 256 / TwipsPerLetter),
            quint16(CellFormats::Reserved - 1), quint16(0), quint16(0));
    }

    void addCell(const SheetCell &cell)
    {
        const auto row = quint16(cell.row);
        const auto column = quint16(cell.column);
        if (cell.kind == SheetCell::Amount)
            add(Number, row, column, CellFormats::of(cell), cell.amount);
        else
            add(LabelSst, row, column, CellFormats::of(cell), m_texts.indexOf(cell.text));
    }

    void addView()
    {
        constexpr quint16 Plain = 0x06b6;
        constexpr quint16 Frozen = 0x0108;
        constexpr quint16 LowerLeft = 2;
        const auto rows = quint16(m_sheet.headerRows);
        add(Window2, quint16(rows > 0 ? Plain | Frozen : Plain), quint16(0), quint16(0),
            quint32(64), quint16(0), quint16(0), quint32(0));
        if (rows > 0)
            add(Pane, quint16(0), rows, rows, quint16(0), LowerLeft);
    }

    const Sheet &m_sheet;
    TextTable m_texts;
    QByteArray m_part;
};

} // namespace

QByteArray xlsOf(const Sheet &sheet)
{
    return compoundFile(u"Workbook"_s, Workbook(sheet).content());
}
