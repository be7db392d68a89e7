// SPDX-License-Identifier: MIT
#include "desktop/savedialog.h"

#include "desktop/dialogplace.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

QString showSaveDialog(const SaveRequest &request)
{
    static QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    QFileDialog dialog(QApplication::activeWindow(), request.title, folder);
    dialog.setObjectName(u"cd1"_s);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    // "*xls" instead of "*.xls", from which the Windows dialog would append ".xls" by itself.
    dialog.setNameFilter(u'*' + request.extension.mid(1));
    dialog.selectFile(request.preset);
    if (runDialog(dialog) != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return {};
    QString picked = dialog.selectedFiles().constFirst();
    folder = QFileInfo(picked).path();
    return picked;
}
