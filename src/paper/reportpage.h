// SPDX-License-Identifier: MIT
// The parts of a report: the layout with its controls in sections, and the finished pages. All
// lengths are in twips, 1/1440 inch.
#pragma once

#include <QColor>
#include <QLine>
#include <QList>
#include <QRect>
#include <QString>

enum class ReportSection { PageHeader, Detail, PageFooter };

/// Appearance of a text in its control.
struct TextStyle
{
    int points = 10;
    Qt::Alignment alignment = Qt::AlignLeft;
    bool bold = false;
    /// Draws a text that is too wide for its control narrower instead of clipping it. For amounts,
    /// since an amount that lost a digit reads as another amount.
    bool whole = false;
    /// Marks a text that is only an amount, which a sheet stores as a number.
    bool amount = false;
    /// Draws a white background, for a text that the ruling would run through.
    bool onWhite = false;

    bool operator==(const TextStyle &) const = default;
};

/// A label, field, line or frame of a layout. A line runs from (left, top) to (left + width, top +
/// height). The box is relative to the left margin and to the top of the section.
struct ReportControl
{
    enum Kind { Text, Line, Frame };

    ReportSection section;
    QString name;
    QRect box;
    Kind kind = Text;
    TextStyle style = {};
    QString text = {}; ///< without one a text control is not drawn
};

/// Paper and controls of a report.
struct ReportLayout
{
    QString title; ///< of the PDF document, the print job and the sheet
    bool landscape = false;
    QList<ReportControl> controls;
};

/// A control as drawn on one page. The box is relative to the corner of the paper.
struct PageItem
{
    ReportSection section{};
    QString name;
    QRect box;
    ReportControl::Kind kind{};
    TextStyle style;
    QString text;
};

/// One finished page.
struct ReportPage
{
    QList<QLine> ruling;   ///< lines beneath the items, in coordinates of the paper
    QList<PageItem> items; ///< section by section, rows in order
};

/// A finished report, as input of the viewer, the printer and the exports.
struct ReportPages
{
    QString title;
    bool landscape = false;
    QList<ReportPage> pages = {};
    QList<QRect> columns = {}; ///< fields of a row from left to right, including empty ones

    /// Returns the size of A4 in the report's orientation.
    QSize paper() const { return landscape ? QSize(16838, 11906) : QSize(11906, 16838); }
};

/// Width of all four margins.
inline constexpr int PageMargin = 300;
