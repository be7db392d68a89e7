// SPDX-License-Identifier: MIT
#include "desktop/application.h"

#include "desktop/boxwindow.h"
#include "desktop/programfolder.h"
#include "desktop/savedialog.h"

#include <QDir>
#include <QFont>
#include <QFontDatabase>
#include <QIcon>

using namespace Qt::StringLiterals;

namespace {

/// Loads the fonts in `fonts/`. The portable folder for Linux, the Windows zip and the Windows
/// build have them, since a machine may lack a Thai font; elsewhere the installed fonts are used.
void loadShippedFonts()
{
    const QDir folder(programFile(u"fonts"_s));
    const QStringList files = folder.entryList({u"*.ttf"_s}, QDir::Files);
    for (const QString &file : files)
        QFontDatabase::addApplicationFont(folder.filePath(file));
}

/// Selects Fusion, which the style sheet is made for. Called before QApplication is constructed,
/// since that would first load the desktop's own style.
int &withFusionStyle(int &argc)
{
    QApplication::setStyle(u"Fusion"_s);
    return argc;
}

} // namespace

Application::Application(int &argc, char **argv) : QApplication(withFusionStyle(argc), argv)
{
    setApplicationName(u"mirakla-desk"_s);
    loadShippedFonts();
    // Noto Sans Thai has no Latin letters, and neither of the two has the arrows of the keyboard
    // picture.
    QFont font(QStringList{u"Noto Sans"_s, u"Noto Sans Thai"_s, u"Noto Sans Symbols"_s});
    font.setPointSize(11);
    setFont(font);
#ifndef Q_OS_WIN // Windows takes the icon from the executable
    setWindowIcon(QIcon(programFile(u"data/mirakla-desk.png"_s)));
#endif
    setBoxShower(showMessageBox);
    setSaveDialog(showSaveDialog);
}
