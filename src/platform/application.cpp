// SPDX-License-Identifier: MIT
#include "platform/application.h"

#include "platform/messagebox.h"
#include "platform/programend.h"
#include "platform/savedialog.h"

#include <QFont>

using namespace Qt::StringLiterals;

Application::Application(int &argc, char **argv) : QApplication(argc, argv)
{
    setApplicationName(u"mirakla-desk"_s);
#ifndef Q_OS_WIN
    // Latin digits and Thai letters of one design. Windows has its own Thai type.
    QFont type(QStringList{u"Noto Sans"_s, u"Noto Sans Thai"_s});
    type.setPointSize(11);
    setFont(type);
#endif
    setBoxShower(showMessageBox);
    setSaveDialog(showSaveDialog);
}

bool Application::notify(QObject *receiver, QEvent *event)
{
    try {
        return QApplication::notify(receiver, event);
    } catch (const RunTimeError &error) {
        endWithReport(error);
    }
}
