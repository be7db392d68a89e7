// SPDX-License-Identifier: MIT
// Shows finished pages one below the other. Only visible pages are drawn, so that a long report
// opens at once.
#pragma once

#include "paper/reportpage.h"

#include <QAbstractScrollArea>
#include <QCache>
#include <QPixmap>

/// A scrollable view of the pages of one report.
class PageView : public QAbstractScrollArea
{
    Q_OBJECT

public:
    static constexpr int FitWidth = -1; ///< a zoom that makes pages as wide as the view
    static constexpr int Smallest = 25; ///< percent
    static constexpr int Largest = 400; ///< percent

    explicit PageView(QWidget *parent = nullptr);

    /// Shows a report from its first page.
    void setReport(const ReportPages &report);
    const ReportPages &report() const { return m_report; }

    Q_INVOKABLE int pageCount() const { return int(m_report.pages.size()); }

    /// Returns the current page, from 1: the one at a third of the view's height, or the last page
    /// if the view is scrolled to the end.
    Q_INVOKABLE int page() const;

    /// Scrolls a page to the top. A number out of range means the first or the last page.
    Q_INVOKABLE void goToPage(int page);

    /// Goes to the previous page and always scrolls up: at the end of the report page() is the last
    /// page, while the one before it may be visible already.
    void previousPage();

    /// Returns the current size in percent, also with FitWidth.
    Q_INVOKABLE int shownPercent() const;

    /// Sets the zoom, limited to 25 to 400 percent, or FitWidth. Keeps the position in the report.
    Q_INVOKABLE void setZoom(int percent);

    /// Returns a page as a picture in its current size.
    QPixmap picture(int page) const;

signals:
    void pageChanged(); ///< page() may have changed
    void zoomChanged(); ///< shownPercent() may have changed

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;
    void wheelEvent(QWheelEvent *event) override;

    /// Page Up and Page Down turn pages; Home and End go to the first and the last page.
    void keyPressEvent(QKeyEvent *event) override;

private:
    double scale() const;
    QSize pageSize() const;
    QRect pageRect(int page) const;
    int pageStep() const;
    void layOut();

    ReportPages m_report;
    int m_zoom = FitWidth;
    int m_laidOutStep = 0; ///< pageStep() when the pages were laid out last
    mutable QCache<int, QPixmap> m_pictures;
};
