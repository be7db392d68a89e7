// SPDX-License-Identifier: MIT
// What a printed report is made of: controls placed in sections, and the finished pages that come
// of them. All lengths are twips, 1/1440 inch.
#pragma once

#include <QColor>
#include <QLine>
#include <QList>
#include <QRect>
#include <QString>

enum class ReportSection { PageHeader, Detail, PageFooter };

/// How a text stands in its control.
struct TextStyle
{
    int points = 10;
    Qt::Alignment alignment = Qt::AlignLeft;
    bool bold = false;
    /// True for a text that tells money: too long for its control, it is drawn narrower, since an
    /// amount that lost a digit reads as another amount. Any other text is clipped.
    bool whole = false;
    /// True for an amount alone, which a sheet takes as a number.
    bool amount = false;
    /// True for a text that a line of the paper would run through: it stands on white.
    bool onWhite = false;

    bool operator==(const TextStyle &) const = default;
};

/// One label, field, line or frame of a layout. A line runs from the corner (left, top) to the
/// corner (left + width, top + height). Left counts from the margin, top from the section's top.
struct ReportControl
{
    enum Kind { Text, Line, Frame };

    ReportSection section;
    QString name;
    QRect box;
    Kind kind = Text;
    TextStyle style = {};
    QString text = {}; ///< a text control without one is left out
};

/// The paper and all that stands on it.
struct ReportLayout
{
    QString title; ///< of the document, as a reader of the file shows it
    bool landscape = false;
    QList<ReportControl> controls;
};

/// What one control became on one page; the box counts from the paper's corner.
struct PageItem
{
    ReportSection section;
    QString name;
    QRect box;
    ReportControl::Kind kind;
    TextStyle style;
    QString text;
};

/// One finished page.
struct ReportPage
{
    QList<QLine> ruling;   ///< lines drawn on the paper itself, beneath all else
    QList<PageItem> items; ///< those of a section stand together, in the order of their rows
};

/// A finished report: what the screen, the printer and the exports draw.
struct ReportPages
{
    QString title;
    bool landscape = false;
    QList<ReportPage> pages = {};
    QList<QRect> columns = {}; ///< fields of a row from left to right, empty ones included

    /// A4 as it lies.
    QSize paper() const { return landscape ? QSize(16838, 11906) : QSize(11906, 16838); }
};

/// All four margins of the paper.
inline constexpr int PageMargin = 300;
