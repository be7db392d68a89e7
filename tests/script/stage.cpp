// SPDX-License-Identifier: MIT
#include "cutting/selection.h"
#include "desktop/clock.h"
#include "desktop/programfolder.h"
#include "desktop/region.h"
#include "desktop/singleinstance.h"
#include "ledger/emptyledger.h"
#include "ledger/ledger.h"
#include "ledger/salt.h"
#include "program.h"
#include "script/player.h"
#include "support/testledger.h"

namespace {

QString emptyLedger;
QByteArray readyKey; ///< takes long to derive
std::unique_ptr<MDIForm1> mainWindow;

} // namespace

void Stage::open(const QString &place)
{
    emptyLedger = place + u"/empty.ZDB"_s;
    if (!QFile::exists(emptyLedger))
        makeEmptyLedger(emptyLedger);
    QFile ledger(emptyLedger);
    if (ledger.open(QIODevice::ReadOnly))
        readyKey = keyWithSalt(LedgerPassword, ledger.read(SaltSize));
    setProgramFolder(place + u"/program"_s);
    setMachineRegion(QLocale(u"th_TH"_s));
    setClock([] { return QDateTime({2026, 11, 16}, {10, 0}); });
}

void Stage::reset()
{
    QApplication::setQuitOnLastWindowClosed(false);
    end();
    QApplication::setQuitOnLastWindowClosed(true);
    CloseLedger();
    leaveOnlyInstance();
    MemberFilterOn = false;
    if (!QDir(file({})).removeRecursively())
        qFatal("cannot remove %s", qUtf8Printable(file({})));
    copyProgramData(QCoreApplication::applicationDirPath(), file({}));
    if (!QFile::copy(emptyLedger, file(u"data/ztkdata.ZDB"_s)))
        qFatal("cannot copy the Ledger");
}

QString Stage::file(const QString &name)
{
    return QFileInfo(emptyLedger).path() + u"/program/"_s + name;
}

QStringList Stage::run(const QString &sql, const QVariantList &values)
{
    if (!LedgerConnection)
        LedgerConnection = Connection::open(file(u"data/ztkdata.ZDB"_s), readyKey);
    QStringList rows;
    for (const QVariantList &row : LedgerConnection->run(sql, values).rows)
        rows += QVariant(row).toStringList().join(u'|');
    return rows;
}

void Stage::start()
{
    CloseLedger();
    mainWindow = startProgram();
    if (!mainWindow)
        std::_Exit(1);
}

void Stage::end()
{
    mainWindow.reset();
}

QMessageBox *Stage::box()
{
    return qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
}

QWidget *Stage::window()
{
    QWidget *top = QApplication::activeModalWidget();
    while (qobject_cast<QMessageBox *>(top))
        top = top->parentWidget() ? top->parentWidget()->window() : mainWindow.get();
    for (QWidget *each : QWidgetList{top, QApplication::activeWindow(), mainWindow.get()})
        if (each && each->windowType() != Qt::Popup)
            return each;
    throw NotYet{u"no window is open"_s};
}

QWidget *Stage::activeWindow()
{
    if (QApplication::activeWindow() != window() && !QApplication::activePopupWidget())
        throw NotYet{nameOf(window()) + u" is not active"_s};
    return window();
}
