// SPDX-License-Identifier: MIT
// What programs that others wrote read in the files that the program writes.
#pragma once

#include <QByteArray>
#include <QDataStream>
#include <QList>
#include <QPair>
#include <QSize>
#include <QStringList>
#include <QVariant>

struct ReadSheet
{
    QString name;
    QList<QVariantList> rows; ///< a text, a number, or nothing
};

/// The first sheet of an .xls file.
ReadSheet readXls(const QByteArray &file);

struct ReadPdf
{
    QString title;
    QList<QSize> pageSizes;            ///< points
    QStringList text;                  ///< lines as they stand, blanks in a row told as one
    QList<QPair<QString, bool>> fonts; ///< and whether each lies in the file
};

ReadPdf readPdf(const QByteArray &file);

// So that what one process has read can be told to another.
inline QDataStream &operator<<(QDataStream &stream, const ReadSheet &read)
{
    return stream << read.name << read.rows;
}
inline QDataStream &operator>>(QDataStream &stream, ReadSheet &read)
{
    return stream >> read.name >> read.rows;
}
inline QDataStream &operator<<(QDataStream &stream, const ReadPdf &read)
{
    return stream << read.title << read.pageSizes << read.text << read.fonts;
}
inline QDataStream &operator>>(QDataStream &stream, ReadPdf &read)
{
    return stream >> read.title >> read.pageSizes >> read.text >> read.fonts;
}
