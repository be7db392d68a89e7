// SPDX-License-Identifier: MIT
#include "shell/statuspanels.h"

#include "desktop/clock.h"
#include "desktop/handler.h"
#include "desktop/keyboardstate.h"
#include "desktop/region.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>

using namespace Qt::StringLiterals;

namespace {

enum Panel { PageName, Caps, Num, Date, Time, Contact };

/// Shows a lock key in bold while it is on, greyed while it is off.
void showLock(QLabel *panel, bool on)
{
    panel->setEnabled(on);
    QFont font = panel->font();
    font.setBold(on);
    panel->setFont(font);
}

} // namespace

StatusPanels::StatusPanels(QWidget *parent) : QStatusBar(parent)
{
    setSizeGripEnabled(false);
    for (int at = 0; at < int(m_panels.size()); ++at) {
        m_panels[at] = new QLabel(this);
        m_panels[at]->setObjectName(u"panel%1"_s.arg(at + 1));
        m_panels[at]->setTextFormat(Qt::PlainText);
        m_panels[at]->setIndent(10);
        m_panels[at]->setMargin(2);
        addWidget(m_panels[at], at == PageName || at == Contact ? 1 : 0);
    }
    m_panels[Caps]->setText(u"CAPS"_s);
    m_panels[Num]->setText(u"NUM"_s);
    m_panels[Contact]->setText(u"ติดต่อ : support@mirakla-desk.example"_s);
    m_panels[Contact]->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    connectHandler(&m_clock, &QTimer::timeout, this, &StatusPanels::showClock);
    showClock();
    showLocks();
    qApp->installEventFilter(this);
}

void StatusPanels::setPageName(const QString &name)
{
    m_panels[PageName]->setText(name);
}

bool StatusPanels::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() == QEvent::KeyRelease) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_CapsLock || key == Qt::Key_NumLock)
            showLocks();
    } else if (event->type() == QEvent::ApplicationStateChange) {
        showLocks(); // they may have changed in another program
    }
    return QStatusBar::eventFilter(object, event);
}

void StatusPanels::showClock()
{
    const QDateTime now = currentDateTime();
    m_panels[Date]->setText(shortDate(now.date()));
    m_panels[Time]->setText(shortTime(now.time()));
    const int msecsToNextMinute = 60'000 - now.time().msecsSinceStartOfDay() % 60'000;
    m_clock.start(msecsToNextMinute);
}

void StatusPanels::showLocks()
{
    showLock(m_panels[Caps], desktop::capsLock());
    showLock(m_panels[Num], desktop::numLock());
}
