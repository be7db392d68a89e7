// SPDX-License-Identifier: MIT
// Writes a sheet as the .xls file that spreadsheet programs have opened since 1997.
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

/// One cell that holds something; those that hold nothing are left out.
struct SheetCell
{
    enum Kind { Text, Amount };

    int row = 0; ///< from 0, as column
    int column = 0;
    Kind kind = Text;
    QString text = {};                       ///< of a text; beyond 4,000 letters it is cut
    double amount = 0;                       ///< shown as "#,##0"
    Qt::Alignment alignment = Qt::AlignLeft; ///< left, centre or right
    bool bold = false;
};

/// A sheet and how it is printed: on A4, as wide as the paper.
struct Sheet
{
    QString name;            ///< at most 31 letters
    QList<int> columnWidths; ///< twips
    QList<SheetCell> cells;  ///< row by row, at most 65,536 of them and 256 columns
    int headerRows = 0;      ///< repeated on each printed page, kept in sight on screen
    bool landscape = false;
    int margin = 0; ///< twips
};

/// The file's bytes.
QByteArray xlsOf(const Sheet &sheet);
