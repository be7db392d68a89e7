// SPDX-License-Identifier: MIT
#include "shell/mdiform1.h"

#include "ui_mdiform1.h"

#include "desktop/dialogplace.h"
#include "desktop/handler.h"
#include "desktop/msgbox.h"
#include "desktop/programend.h"
#include "desktop/programfolder.h"
#include "desktop/singleinstance.h"
#include "ledger/ledger.h"
#include "runtime/runtimeerror.h"
#include "shell/globals.h"
#include "shell/statuspanels.h"
#include "shell/stylesheet.h"

#include <QCloseEvent>
#include <QDir>
#include <QStyle>

using namespace Qt::StringLiterals;

namespace {

/// What a navigation button sets.
struct Navigation
{
    quint8 cutOrigin = FromOtherPage;
    QStringView statusText;
};

/// In the order of the buttons.
constexpr std::array<Navigation, PageCount> NavigationTable{{
    {FromOtherPage, u"หน้าหลัก"},
    {FromOtherPage, u"ข้อมูลลูกค้า"},
    {FromBoard, u"คัดหวย"},
    {FromOtherPage, u"ตรวจหวย"},
    {FromOtherPage, u"ข้อมูลย้อนหลัง"},
}};

/// Disables the navigation button of the current page and makes the style sheet mark it. A style
/// sheet reads a property only when the widget is polished.
void showButton(QPushButton &button, bool current)
{
    button.setEnabled(!current);
    button.setProperty("current", current);
    button.style()->unpolish(&button);
    button.style()->polish(&button);
}

/// Deletes the .tmp files in the program's folder, including those of other programs.
void deleteTemporaryFiles()
{
    QDir folder(programFolder());
    const QStringList files = folder.entryList({u"*.tmp"_s}, QDir::Files);
    for (const QString &file : files)
        folder.remove(file);
}

} // namespace

MDIForm1::MDIForm1(Pages pages) : m_ui(std::make_unique<Ui::MDIForm1>()), m_pages(std::move(pages))
{
    m_ui->setupUi(this);
    setWindowTitle(u"Mirakla Desk - 2.3"_s);
    m_pageButtons = {m_ui->lvButtons_H0, m_ui->lvButtons_H1, m_ui->lvButtons_H2, m_ui->lvButtons_H3,
                     m_ui->lvButtons_H4};
    m_strip =
        std::make_unique<CustomerStrip>(*m_ui->Frame6, *m_ui->Tname, *m_ui->text2, *m_ui->text3);
    connectNavigation();
    m_strip->hide();
    connectHandler(qApp, &QGuiApplication::commitDataRequest, this, &MDIForm1::endSession);
}

MDIForm1::~MDIForm1()
{
    delete m_page; // it uses the strip and the progress bar, so it goes first
}

bool MDIForm1::MDIForm_Load()
{
    if (!becomeOnlyInstance()) {
        m_ended = true;
        refuseSecondCopy();
        return false;
    }
    CurrentUser = u"sv"_s;
    ConnectLedger();
    LoadMoney();
    loadStyleSheet(programFile(u"data/Styles/mirakla.qss"_s));
    centerWindow(*this);
    return true;
}

void MDIForm1::connectNavigation()
{
    for (int page = 0; page < PageCount; ++page)
        connectHandler(m_pageButtons[page], &QPushButton::clicked, this,
                       [this, page] { openPage(page); });
    connectHandler(m_ui->lvButtons_H5, &QPushButton::clicked, this, [this] {
        m_pages.showSettings({*m_ui->pb1, *m_strip}, this);
        if (m_page)
            m_page->setFocus(); // so that typing can go on at once
    });
}

void MDIForm1::openPage(int page)
{
    CutOrigin = NavigationTable[page].cutOrigin;
    for (int other = 0; other < PageCount; ++other)
        showButton(*m_pageButtons[other], other == page);
    delete m_page; // with its unsaved input
    m_page = m_pages.makers[page]({*m_ui->pb1, *m_strip}, m_ui->pageArea);
    m_ui->pageArea->layout()->addWidget(m_page);
    m_page->show();
    if (!m_page->isAncestorOf(QApplication::focusWidget()))
        m_page->setFocus(); // the pressed button is now disabled and loses it
    m_ui->StatusBar->setPageName(NavigationTable[page].statusText.toString());
}

void MDIForm1::closeEvent(QCloseEvent *event)
{
    event->setAccepted(handle([this] { return MDIForm_QueryUnload(); }));
}

/// Asks before the desktop logs off or shuts down, while Cancel can still stop it.
void MDIForm1::endSession(QSessionManager &session)
{
    if (!session.allowsInteraction())
        return;
    if (!MDIForm_QueryUnload())
        session.cancel(); // without release(), which would block the keyboard
}

bool MDIForm1::MDIForm_QueryUnload()
{
    if (m_ended)
        return true;
    // Only a log-off of the desktop can come while a box or a dialog is open.
    const bool isModalOpen = QApplication::activeModalWidget() != nullptr;
    if (!ask(u"คุณแน่ใจว่าต้องการจบการทำงานของโปรแกรม ?"_s, u"ยืนยันการจบรายการ"_s, BoxIcon::Question,
             BoxAnswer::Cancel))
        return false;
    m_ended = true;
    if (!isModalOpen)
        resumeNext([this] { UnloadAllForms(); });
    resumeNext(deleteTemporaryFiles);
    resumeNext(CloseLedger);
    if (isModalOpen)
        endProgram(0); // the code that opened the box must not go on without a Ledger
    QApplication::quit();
    return true;
}

void MDIForm1::UnloadAllForms()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (window != this && window->isVisible())
            window->close();
    }
    delete m_page;
}
