// SPDX-License-Identifier: MIT
#include "desktop/boxwindow.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>

#include <utility>

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

/// A box may come up under the pointer between the two halves of a double click. It takes a press
/// of the mouse only once the double-click interval has passed since it was painted.
class BoxWindow : public QMessageBox
{
public:
    using QMessageBox::QMessageBox;

    /// To be called when all buttons are there.
    void guardButtons()
    {
        const QList<QAbstractButton *> all = buttons();
        for (QAbstractButton *button : all) {
            button->installEventFilter(this);
            button->setFocusPolicy(Qt::TabFocus); // a press that is not taken moves no focus either
        }
    }

protected:
    bool event(QEvent *event) override
    {
        if (event->type() == QEvent::Paint) // queued: painting may be slow, and does not count
            QMetaObject::invokeMethod(this, &BoxWindow::appeared, Qt::QueuedConnection);
        return QMessageBox::event(event);
    }

    bool eventFilter(QObject *object, QEvent *event) override
    {
        const bool doubled = event->type() == QEvent::MouseButtonDblClick;
        if (!doubled && event->type() != QEvent::MouseButtonPress)
            return QMessageBox::eventFilter(object, event);
        const bool firstPress = !std::exchange(m_pressed, true);
        return (doubled && firstPress) // the first half went elsewhere, however long ago
               || !m_sinceShown.isValid()
               || !m_sinceShown.hasExpired(QApplication::doubleClickInterval());
    }

private:
    void appeared()
    {
        if (!m_sinceShown.isValid()) // painted for the first time
            m_sinceShown.start();
    }

    QElapsedTimer m_sinceShown;
    bool m_pressed = false;
};

} // namespace

BoxAnswer showMessageBox(const Box &box)
{
    // Of two boxes in a row the second comes before the desktop has made their opener active again.
    static QPointer<QWidget> opener;
    if (QWidget *active = QApplication::activeWindow())
        opener = active;
    BoxWindow window(opener);
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
    window.guardButtons();
    const bool accepted = window.exec() == QMessageBox::Ok;
    if (opener)
        opener->activateWindow(); // a desktop without a window manager leaves it without keys
    return accepted || !question ? BoxAnswer::Ok : BoxAnswer::Cancel;
}
