// SPDX-License-Identifier: MIT
#include "platform/messagebox.h"

#include <QApplication>
#include <QMessageBox>
#include <QPointer>

using namespace Qt::StringLiterals;

namespace {

QMessageBox::Icon iconOf(BoxIcon icon)
{
    switch (icon) {
    case BoxIcon::Critical:
        return QMessageBox::Critical;
    case BoxIcon::Question:
        return QMessageBox::Question;
    case BoxIcon::Exclamation:
        return QMessageBox::Warning;
    case BoxIcon::Information:
        return QMessageBox::Information;
    case BoxIcon::None:
        break;
    }
    return QMessageBox::NoIcon;
}

} // namespace

BoxAnswer showMessageBox(const Box &box)
{
    // Of two boxes in a row the second comes before the desktop has made their opener active again.
    static QPointer<QWidget> opener;
    if (QWidget *active = QApplication::activeWindow())
        opener = active;
    QMessageBox window(opener);
    window.setObjectName(u"MsgBox"_s);
    window.setWindowModality(Qt::ApplicationModal);
    window.setIcon(iconOf(box.style.icon));
    window.setWindowTitle(box.title);
    window.setTextFormat(Qt::PlainText); // a name may hold "<"
    window.setText(box.text);
    const bool question = box.style.buttons == BoxButtons::OkCancel;
    window.setStandardButtons(question ? QMessageBox::Ok | QMessageBox::Cancel : QMessageBox::Ok);
    window.setDefaultButton(box.style.preselected == BoxAnswer::Ok ? QMessageBox::Ok
                                                                   : QMessageBox::Cancel);
    const bool accepted = window.exec() == QMessageBox::Ok;
    if (opener)
        opener->activateWindow(); // a desktop without a window manager leaves it without keys
    return accepted || !question ? BoxAnswer::Ok : BoxAnswer::Cancel;
}
