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

/// A box may appear under the pointer between the two clicks of a double click. Its buttons ignore
/// the mouse until the double-click interval has passed since the box was painted.
class BoxWindow : public QMessageBox
{
public:
    using QMessageBox::QMessageBox;

    /// Call this after all buttons have been added.
    void guardButtons()
    {
        const QList<QAbstractButton *> all = buttons();
        for (QAbstractButton *button : all) {
            button->installEventFilter(this);
            button->setFocusPolicy(Qt::TabFocus); // an ignored click must not move the focus
        }
    }

protected:
    bool event(QEvent *event) override
    {
        if (event->type() == QEvent::Paint) // queued, so that slow painting does not count
            QMetaObject::invokeMethod(this, &BoxWindow::appeared, Qt::QueuedConnection);
        return QMessageBox::event(event);
    }

    bool eventFilter(QObject *object, QEvent *event) override
    {
        const bool doubled = event->type() == QEvent::MouseButtonDblClick;
        if (!doubled && event->type() != QEvent::MouseButtonPress)
            return QMessageBox::eventFilter(object, event);
        const bool firstPress = !std::exchange(m_pressed, true);
        return (doubled && firstPress) // the first click went to another window
               || !m_sinceShown.isValid()
               || !m_sinceShown.hasExpired(QApplication::doubleClickInterval());
    }

private:
    void appeared()
    {
        if (!m_sinceShown.isValid())
            m_sinceShown.start();
    }

    QElapsedTimer m_sinceShown;
    bool m_pressed = false;
};

} // namespace

BoxAnswer showMessageBox(const Box &box)
{
    // Static, since the second of two boxes in a row opens before the window manager has reactivated
    // the parent: no window is active then, and the last one is used.
    static QPointer<QWidget> opener;
    if (QWidget *active = QApplication::activeWindow())
        opener = active;
    if (!opener) // it was a dialog that has just closed
        opener = QApplication::activeModalWidget();
    BoxWindow window(opener);
    window.setObjectName(u"MsgBox"_s);
    window.setWindowModality(Qt::ApplicationModal);
    window.setIcon(iconOf(box.style.icon));
    window.setWindowTitle(box.title);
    window.setTextFormat(Qt::PlainText); // a name may contain "<"
    window.setText(box.text);
    const bool question = box.style.buttons == BoxButtons::OkCancel;
    window.setStandardButtons(question ? QMessageBox::Ok | QMessageBox::Cancel : QMessageBox::Ok);
    window.setDefaultButton(box.style.preselected == BoxAnswer::Ok ? QMessageBox::Ok
                                                                   : QMessageBox::Cancel);
    window.guardButtons();
    const bool accepted = window.exec() == QMessageBox::Ok;
    if (opener)
        opener->activateWindow(); // nothing else does so without a window manager
    return accepted || !question ? BoxAnswer::Ok : BoxAnswer::Cancel;
}
