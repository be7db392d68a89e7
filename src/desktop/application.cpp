// SPDX-License-Identifier: MIT
#include "desktop/application.h"

#include "desktop/boxwindow.h"
#include "desktop/programend.h"
#include "desktop/programfolder.h"
#include "desktop/savedialog.h"

#include <QDir>
#include <QFont>
#include <QFontDatabase>

using namespace Qt::StringLiterals;

namespace {

/// Type that lies beside the program. The portable folder carries it for machines that have no Thai
/// letters; elsewhere the type is the machine's.
void takeCarriedType()
{
    const QDir folder(programFile(u"fonts"_s));
    const QStringList files = folder.entryList({u"*.ttf"_s}, QDir::Files);
    for (const QString &file : files)
        QFontDatabase::addApplicationFont(folder.filePath(file));
}

/// Chooses the style that the sheet is drawn for. Before the application stands, or it would first
/// load the desktop's.
int &withStyle(int &argc)
{
    QApplication::setStyle(u"Fusion"_s);
    return argc;
}

} // namespace

Application::Application(int &argc, char **argv) : QApplication(withStyle(argc), argv)
{
    setApplicationName(u"mirakla-desk"_s);
    takeCarriedType();
    // Latin digits and Thai letters of one design; of symbols the arrows on keys.
    QFont type(QStringList{u"Noto Sans"_s, u"Noto Sans Thai"_s, u"Noto Sans Symbols"_s});
    type.setPointSize(11);
    setFont(type);
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
