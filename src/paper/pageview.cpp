// SPDX-License-Identifier: MIT
#include "paper/pageview.h"

#include "paper/pagepainter.h"

#include <QKeyEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>
#include <memory>

namespace {

constexpr double TwipsPerInch = 1440;
constexpr int Gap = 14;                 // around pages, in pixels
constexpr int PicturesKept = 64 * 1024; // cost limit of the cache, in kilobytes

} // namespace

PageView::PageView(QWidget *parent) : QAbstractScrollArea(parent), m_pictures(PicturesKept)
{
    setFocusPolicy(Qt::StrongFocus);
    viewport()->setBackgroundRole(QPalette::Dark);
    // With FitWidth the page size would depend on the visibility of the bar, and that on the size.
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
}

void PageView::setReport(const ReportPages &report)
{
    m_report = report;
    layOut();
    goToPage(1);
}

double PageView::scale() const
{
    if (m_zoom == FitWidth)
        return std::max(1.0, viewport()->width() - 2.0 * Gap) / m_report.paper().width();
    return m_zoom / 100.0 * logicalDpiX() / TwipsPerInch;
}

int PageView::shownPercent() const
{
    return int(std::lround(scale() * TwipsPerInch / logicalDpiX() * 100));
}

QSize PageView::pageSize() const
{
    return (QSizeF(m_report.paper()) * scale()).toSize();
}

int PageView::pageStep() const
{
    return pageSize().height() + Gap;
}

QRect PageView::pageRect(int page) const
{
    const QSize size = pageSize();
    const int space = viewport()->width() - size.width();
    const int left = space > 2 * Gap ? space / 2 : Gap - horizontalScrollBar()->value();
    return {QPoint(left, Gap + (page - 1) * pageStep() - verticalScrollBar()->value()), size};
}

int PageView::page() const
{
    const QScrollBar &bar = *verticalScrollBar();
    if (bar.maximum() > 0 && bar.value() == bar.maximum())
        return std::max(1, pageCount()); // also if pages before it are still visible
    const int inSight = bar.value() + viewport()->height() / 3;
    return std::clamp(inSight / pageStep() + 1, 1, std::max(1, pageCount()));
}

void PageView::goToPage(int page)
{
    verticalScrollBar()->setValue((std::clamp(page, 1, std::max(1, pageCount())) - 1) * pageStep());
    emit pageChanged();
}

void PageView::previousPage()
{
    const int above = (verticalScrollBar()->value() - 1) / pageStep() + 1;
    goToPage(std::min(page() - 1, above));
}

void PageView::setZoom(int percent)
{
    const int step = m_laidOutStep > 0 ? m_laidOutStep : pageStep();
    const double place = double(verticalScrollBar()->value()) / step;
    m_zoom = percent == FitWidth ? FitWidth : std::clamp(percent, Smallest, Largest);
    layOut();
    verticalScrollBar()->setValue(int(std::lround(place * pageStep())));
    emit zoomChanged();
    emit pageChanged();
}

QPixmap PageView::picture(int page) const
{
    if (const QPixmap *kept = m_pictures.object(page))
        return *kept;
    auto picture = std::make_unique<QPixmap>(pageSize() * devicePixelRatioF());
    picture->setDevicePixelRatio(devicePixelRatioF());
    picture->fill(Qt::white); // also on a dark desktop
    QPainter painter(picture.get());
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    painter.scale(scale(), scale());
    drawPage(painter, m_report.pages[page - 1]);
    painter.end();
    QPixmap shown = *picture;
    const qsizetype kilobytes = qsizetype(shown.width()) * shown.height() * 4 / 1024;
    m_pictures.insert(page, picture.release(), kilobytes);
    return shown;
}

void PageView::layOut()
{
    m_pictures.clear();
    m_laidOutStep = pageStep();
    const QSize space = viewport()->size();
    const int height = Gap + pageCount() * pageStep();
    verticalScrollBar()->setRange(0, std::max(0, height - space.height()));
    verticalScrollBar()->setPageStep(space.height());
    verticalScrollBar()->setSingleStep(60);
    const int width = m_zoom == FitWidth ? 0 : pageSize().width() + 2 * Gap;
    horizontalScrollBar()->setRange(0, std::max(0, width - space.width()));
    horizontalScrollBar()->setPageStep(space.width());
    viewport()->update();
}

void PageView::paintEvent(QPaintEvent *event)
{
    QPainter painter(viewport());
    for (int page = 1; page <= pageCount(); ++page) {
        const QRect rect = pageRect(page);
        if (!rect.intersects(event->rect()))
            continue;
        painter.drawPixmap(rect.topLeft(), picture(page));
        painter.setPen(palette().color(QPalette::Shadow));
        painter.drawRect(rect.adjusted(-1, -1, 0, 0));
    }
}

void PageView::resizeEvent(QResizeEvent *event)
{
    QAbstractScrollArea::resizeEvent(event);
    setZoom(m_zoom);
}

void PageView::scrollContentsBy(int dx, int dy)
{
    viewport()->scroll(dx, dy);
    emit pageChanged();
}

void PageView::wheelEvent(QWheelEvent *event)
{
    constexpr int Step = 10;
    if (!(event->modifiers() & Qt::ControlModifier)) {
        QAbstractScrollArea::wheelEvent(event);
        return;
    }
    setZoom(std::max(Smallest, shownPercent() + (event->angleDelta().y() > 0 ? Step : -Step)));
    event->accept();
}

void PageView::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_PageUp:
        previousPage();
        break;
    case Qt::Key_PageDown:
        goToPage(page() + 1);
        break;
    case Qt::Key_Home:
        goToPage(1);
        break;
    case Qt::Key_End:
        goToPage(pageCount());
        break;
    default:
        QAbstractScrollArea::keyPressEvent(event);
    }
}
