// SPDX-License-Identifier: MIT
// Writes a sheet as an .xls file: BIFF8 records in a compound file.
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

/// A cell with content. Empty cells are left out.
struct SheetCell
{
    enum Kind { Text, Amount };

    int row = 0;    ///< from 0
    int column = 0; ///< from 0
    Kind kind = Text;
    QString text = {};                       ///< of a Text; truncated to 4,000 characters
    double amount = 0;                       ///< of an Amount; shown as "#,##0"
    Qt::Alignment alignment = Qt::AlignLeft; ///< left, centre or right
    bool bold = false;
};

/// A sheet with its print setup: on A4, scaled to the width of the paper.
struct Sheet
{
    QString name;            ///< at most 31 characters
    QList<int> columnWidths; ///< twips
    QList<SheetCell> cells;  ///< row by row; at most 65,536 rows and 256 columns
    int headerRows = 0;      ///< repeated on each printed page, frozen on screen
    bool landscape = false;
    int margin = 0; ///< twips
};

/// Returns the content of the .xls file.
QByteArray xlsOf(const Sheet &sheet);
