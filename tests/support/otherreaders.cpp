// SPDX-License-Identifier: MIT
#include "support/otherreaders.h"

#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryFile>

#include <freexl.h>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

/// @p file on the disk, for as long as the object lives.
std::unique_ptr<QTemporaryFile> onDisk(const QByteArray &file)
{
    auto stored = std::make_unique<QTemporaryFile>();
    if (!stored->open() || stored->write(file) != file.size() || !stored->flush())
        qFatal("no room for a temporary file");
    return stored;
}

QVariant valueOf(const FreeXL_CellValue &cell)
{
    switch (cell.type) {
    case FREEXL_CELL_NULL:
        return {};
    case FREEXL_CELL_INT:
        return double(cell.value.int_value);
    case FREEXL_CELL_DOUBLE:
        return cell.value.double_value;
    case FREEXL_CELL_TEXT:
    case FREEXL_CELL_SST_TEXT:
        return QString::fromUtf8(cell.value.text_value);
    default:
        return u"a date or a time"_s;
    }
}

QString outputOf(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    if (!process.waitForFinished() || process.exitCode() != 0)
        qFatal("%s failed", qPrintable(program));
    return QString::fromUtf8(process.readAllStandardOutput());
}

} // namespace

ReadSheet readXls(const QByteArray &file)
{
    const auto stored = onDisk(file);
    const void *book = nullptr;
    if (freexl_open(stored->fileName().toUtf8().constData(), &book) != FREEXL_OK)
        return {};
    const char *name = nullptr;
    unsigned int rows = 0;
    unsigned short columns = 0;
    freexl_get_worksheet_name(book, 0, &name);
    freexl_select_active_worksheet(book, 0);
    freexl_worksheet_dimensions(book, &rows, &columns);
    ReadSheet read{QString::fromUtf8(name), {}};
    for (unsigned int row = 0; row < rows; ++row) {
        read.rows += QVariantList();
        for (unsigned short column = 0; column < columns; ++column) {
            FreeXL_CellValue cell{};
            freexl_get_cell_value(book, row, column, &cell);
            read.rows.last() += valueOf(cell);
        }
    }
    freexl_close(book);
    return read;
}

ReadPdf readPdf(const QByteArray &file)
{
    const auto stored = onDisk(file);
    const QString path = stored->fileName();
    ReadPdf read;
    const QString info = outputOf(u"pdfinfo"_s, {u"-l"_s, u"9999"_s, path});
    static const QRegularExpression titleLine(u"^Title:\\s+(.*)$"_s,
                                              QRegularExpression::MultilineOption);
    read.title = titleLine.match(info).captured(1);
    static const QRegularExpression sizeLine(u"Page +\\d+ size: +([0-9.]+) x ([0-9.]+)"_s);
    for (const auto &match : sizeLine.globalMatch(info))
        read.pageSizes +=
            QSizeF(match.captured(1).toDouble(), match.captured(2).toDouble()).toSize();
    const QString text = outputOf(u"pdftotext"_s, {u"-layout"_s, path, u"-"_s});
    for (const QString &line : text.split(QRegularExpression(u"[\n\f]"_s))) {
        if (!line.trimmed().isEmpty())
            read.text += line.simplified();
    }
    static const QRegularExpression fontLine(u"^(\\S+) .* (yes|no) +(yes|no) +(yes|no) +\\d"_s);
    for (const QString &line : outputOf(u"pdffonts"_s, {path}).split(u'\n')) {
        if (const auto match = fontLine.match(line); match.hasMatch())
            read.fonts += {match.captured(1), match.captured(2) == u"yes"};
    }
    return read;
}
