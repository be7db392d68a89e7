// SPDX-License-Identifier: MIT
#include "script/stage.h"

#include "cutting/selection.h"
#include "desktop/clock.h"
#include "desktop/programfolder.h"
#include "desktop/region.h"
#include "desktop/singleinstance.h"
#include "ledger/emptyledger.h"
#include "ledger/ledger.h"
#include "ledger/salt.h"
#include "program.h"
#include "script/controls.h"
#include "support/testledger.h"

#include <QApplication>
#include <QDir>
#include <QMessageBox>

#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {

void resetMachine()
{
    static const QPalette colors = QApplication::palette();
    QApplication::setPalette(colors);
    setMachineRegion(QLocale(u"th_TH"_s));
    setClock([] { return QDateTime({2026, 11, 16}, {10, 0}); });
}

/// The key of @p ledger, which takes long to make, for all files with the same salt.
QByteArray readyKey(const QString &ledger)
{
    static const QByteArray key = [&] {
        QFile file(ledger);
        if (!file.open(QIODevice::ReadOnly))
            qFatal("cannot read %s", qUtf8Printable(ledger));
        return keyWithSalt(LedgerPassword, file.read(SaltSize));
    }();
    return key;
}

} // namespace

Stage::Stage(const QString &place) : m_place(place), m_folder(place + u"/program"_s)
{
    if (!QFile::exists(place + u"/empty.ZDB"_s)) {
        makeEmptyLedger(place + u"/empty.ZDB"_s);
        copyProgramData(QCoreApplication::applicationDirPath(), place);
    }
    setProgramFolder(m_folder);
    resetMachine();
}

Stage::~Stage() = default; // as main() does, and no more

void Stage::reset()
{
    QApplication::setQuitOnLastWindowClosed(false); // not before the last case
    m_main.reset();
    QApplication::setQuitOnLastWindowClosed(true);
    CloseLedger();
    leaveOnlyInstance();
    started = false;
    MemberFilterOn = false; // as in a new process
    resetMachine();
    if (!QDir(m_folder).removeRecursively())
        qFatal("cannot remove %s", qUtf8Printable(m_folder));
    copyProgramData(m_place, m_folder);
    if (!QFile::copy(m_place + u"/empty.ZDB"_s, file(u"data/ztkdata.ZDB"_s)))
        qFatal("cannot copy the Ledger");
}

QStringList Stage::run(const QString &sql, const QVariantList &values)
{
    const QString path = file(u"data/ztkdata.ZDB"_s);
    if (!LedgerConnection)
        LedgerConnection = Connection::open(path, readyKey(path));
    QStringList rows;
    for (const QVariantList &row : LedgerConnection->run(sql, values).rows) {
        QStringList fields;
        for (const QVariant &field : row)
            fields += field.toString();
        rows += fields.join(u'|');
    }
    return rows;
}

void Stage::start()
{
    started = true;
    CloseLedger();
    m_main = startProgram();
    if (!m_main)
        std::_Exit(1);
}

QMessageBox *Stage::box()
{
    return qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
}

QWidget *Stage::window() const
{
    QWidget *top = QApplication::activeModalWidget();
    while (qobject_cast<QMessageBox *>(top))
        top = top->parentWidget() ? top->parentWidget()->window() : nullptr;
    QWidget *found = chosen && chosen->isVisible() ? chosen.data() : m_main.get();
    if (top && top->isModal())
        found = top;
    if (!found)
        throw NotYet{u"no window is open"_s};
    return found;
}

QWidget *Stage::activeWindow() const
{
    QWidget *found = window();
    if (QApplication::activeWindow() != found && !QApplication::activePopupWidget())
        throw NotYet{
            u"active is %1, not %2"_s.arg(nameOf(QApplication::activeWindow()), nameOf(found))};
    return found;
}
