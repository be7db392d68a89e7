// SPDX-License-Identifier: MIT
// Finished pages on screen, one below the other. Only what is in sight is drawn, so that the
// first page of a long report is there at once.
#pragma once

#include "paper/reportpage.h"

#include <QAbstractScrollArea>
#include <QCache>
#include <QPixmap>

/// The pages of one report at one zoom, with the place in it that is in sight.
class PageView : public QAbstractScrollArea
{
    Q_OBJECT

public:
    static constexpr int FitWidth = -1; ///< as a zoom: pages as wide as the view
    static constexpr int Smallest = 25; ///< percent
    static constexpr int Largest = 400; ///< percent

    explicit PageView(QWidget *parent = nullptr);

    void setReport(const ReportPages &report);
    const ReportPages &report() const { return m_report; }

    Q_INVOKABLE int pageCount() const { return int(m_report.pages.size()); }

    /// The page in sight, from 1: the one that reaches into the upper third of the view.
    Q_INVOKABLE int page() const;

    /// Brings a page to the top; the nearest one if there is none of that number.
    Q_INVOKABLE void goToPage(int page);

    /// Goes back to the page before, also from the end of the report, where several pages may be in
    /// sight and the one before the last is there already.
    void previousPage();

    /// Percent at which pages are shown now, also while they fit the width.
    Q_INVOKABLE int shownPercent() const;

    /// Sets the zoom; the place in the report stays in sight. 25 to 400 percent, or FitWidth.
    Q_INVOKABLE void setZoom(int percent);

    /// A page as a picture of the size in which it is shown.
    QPixmap picture(int page) const;

signals:
    void pageChanged(); ///< another page may be in sight
    void zoomChanged(); ///< pages are shown at another size

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;
    void wheelEvent(QWheelEvent *event) override;

    /// Page Up and Page Down turn pages; Home and End go to the first and the last.
    void keyPressEvent(QKeyEvent *event) override;

private:
    double scale() const;
    QSize pageSize() const;
    QRect pageRect(int page) const;
    int pageStep() const;
    void layOut();

    ReportPages m_report;
    int m_zoom = FitWidth;
    int m_laidOutStep = 0; ///< from page to page when the pages were laid out last
    mutable QCache<int, QPixmap> m_pictures;
};
