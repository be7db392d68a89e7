// SPDX-License-Identifier: MIT
// The hands of a keyer: real key and mouse events to the real windows, and answers to real boxes.
#pragma once

#include <QObject>
#include <QStringList>

#include <functional>
#include <utility>

class QMessageBox;
class QWidget;

class Hands : public QObject
{
    Q_OBJECT

public:
    Hands();

    /// The control that has the focus, once a box that was answered has given it back.
    static QWidget *focus();

    /// Waits until a control in @p window has the focus; that a window is in front comes earlier.
    static bool focusComesTo(const QWidget *window);

    /// Types characters into whatever has the focus, as keys.
    static void type(const QString &text);
    static void press(Qt::Key key);
    static void click(QWidget *control);

    /// Texts of the boxes that came up since the last call. Each was answered with Enter, which
    /// presses its default button, or with the button asked for by answerNextWithOk().
    QStringList takeBoxes();

    /// How the first box since then looked: "title, icon, default button", the icon as one of
    /// QMessageBox's numbers.
    QString firstLook() const { return m_looks.value(0); }

    /// Has OK answer the next box, whatever its default button is.
    void answerNextWithOk() { m_pressOk = true; }

    /// Has @p work done in the next dialog that opens, which has to close it: whoever opens a modal
    /// dialog waits for that.
    void inNextDialog(std::function<void(QWidget *dialog)> work) { m_inDialog = std::move(work); }

signals:
    /// A box is on the screen and has not been answered yet. Whoever listens may answer it.
    void boxShown(QWidget *box);

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    void answer(QMessageBox *box);

    QStringList m_boxes;
    QStringList m_looks;
    bool m_pressOk = false;
    std::function<void(QWidget *dialog)> m_inDialog;
};
