// SPDX-License-Identifier: MIT
#include "paper/reportviewer.h"

#include "paper/printpages.h"

#include <QAction>
#include <QClipboard>
#include <QFocusEvent>
#include <QGuiApplication>
#include <QLabel>
#include <QToolBar>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int ZoomStep = 25;

/// Returns a label wide enough for its longest text, so that the tools beside it do not move.
QLabel *toolLabel(const QString &name, const QString &longest, QWidget *parent)
{
    auto *label = new QLabel(parent);
    label->setObjectName(name);
    label->setAlignment(Qt::AlignCenter);
    label->setMinimumWidth(label->fontMetrics().horizontalAdvance(longest));
    return label;
}

} // namespace

ReportViewer::ReportViewer(QWidget *parent)
    : QWidget(parent), m_tools(new QToolBar(this)),
      m_place(toolLabel(u"place"_s, u" 999 / 999 "_s, this)),
      m_percent(toolLabel(u"percent"_s, u" 400% "_s, this))
{
    m_tools->setObjectName(u"tools"_s);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    layout->addWidget(m_tools);

    addTool(u"คัดลอกหน้านี้"_s, u"copy"_s, &ReportViewer::copyPage);
    m_tools->addSeparator();
    addTool(u"พิมพ์"_s, u"print"_s, &ReportViewer::print);
    m_tools->addSeparator();
    addTool(u"–"_s, u"zoomOut"_s, &ReportViewer::zoomOut);
    m_tools->addWidget(m_percent);
    addTool(u"+"_s, u"zoomIn"_s, &ReportViewer::zoomIn);
    addTool(u"พอดีความกว้าง"_s, u"fitWidth"_s, &ReportViewer::fitWidth);
    m_tools->addSeparator();
    addTool(u"หน้าแรก"_s, u"first"_s, &ReportViewer::firstPage);
    addTool(u"‹ ก่อนหน้า"_s, u"previous"_s, &ReportViewer::previousPage);
    m_tools->addWidget(m_place);
    addTool(u"ถัดไป ›"_s, u"next"_s, &ReportViewer::nextPage);
    addTool(u"หน้าสุดท้าย"_s, u"last"_s, &ReportViewer::lastPage);
    m_pages = new PageView(this); // created last, so that Tab reaches it after the tools
    m_pages->setObjectName(u"pages"_s);
    m_pages->setAccessibleName(u"หน้ารายงาน"_s);
    layout->addWidget(m_pages, 1);
    connect(m_pages, &PageView::pageChanged, this, &ReportViewer::showPlace);
    connect(m_pages, &PageView::zoomChanged, this, &ReportViewer::showPlace);
}

void ReportViewer::addTool(const QString &text, const QString &name, void (ReportViewer::*run)())
{
    QAction *tool = m_tools->addAction(text);
    tool->setObjectName(name);
    QWidget *button = m_tools->widgetForAction(tool);
    button->setObjectName(name);
    button->setFocusPolicy(Qt::TabFocus);
    connect(tool, &QAction::triggered, this, run);
}

/// Passes the focus to the pages. With a focus proxy, Tab would skip the tools.
void ReportViewer::focusInEvent(QFocusEvent *event)
{
    m_pages->setFocus(event->reason());
}

void ReportViewer::setReport(const ReportPages &report)
{
    m_pages->setReport(report);
}

QAction *ReportViewer::tool(int index) const
{
    return m_tools->actions().at(index);
}

void ReportViewer::copyPage()
{
    QGuiApplication::clipboard()->setPixmap(m_pages->picture(m_pages->page()));
}

void ReportViewer::print()
{
    printWithDialog(report(), window());
}

void ReportViewer::zoomOut()
{
    const int smaller = (m_pages->shownPercent() - 1) / ZoomStep * ZoomStep;
    m_pages->setZoom(std::max(PageView::Smallest, smaller));
}

void ReportViewer::zoomIn()
{
    m_pages->setZoom((m_pages->shownPercent() / ZoomStep + 1) * ZoomStep);
}

void ReportViewer::fitWidth()
{
    m_pages->setZoom(PageView::FitWidth);
}

void ReportViewer::firstPage()
{
    m_pages->goToPage(1);
}

void ReportViewer::previousPage()
{
    m_pages->previousPage();
}

void ReportViewer::nextPage()
{
    m_pages->goToPage(m_pages->page() + 1);
}

void ReportViewer::lastPage()
{
    m_pages->goToPage(m_pages->pageCount());
}

void ReportViewer::showPlace()
{
    m_place->setText(u"%1 / %2"_s.arg(m_pages->page()).arg(m_pages->pageCount()));
    m_percent->setText(u"%1%"_s.arg(m_pages->shownPercent()));
}
