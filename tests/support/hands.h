// SPDX-License-Identifier: MIT
// The hands of a keyer: real key and mouse events to the real windows, and answers to real boxes.
#pragma once

#include <QObject>
#include <QStringList>

class QMessageBox;
class QWidget;

class Hands : public QObject
{
    Q_OBJECT

public:
    Hands();

    /// The control that has the focus, once a box that was answered has given it back.
    static QWidget *focus();

    /// Types characters into whatever has the focus, as keys.
    static void type(const QString &text);
    static void press(Qt::Key key);
    static void click(QWidget *control);

    /// Texts of the boxes that came up since the last call. Each was answered with Enter, which
    /// presses its default button, or with the button asked for by answerNext().
    QStringList takeBoxes();

    /// Has OK answer the next box, whatever its default button is.
    void answerNextWithOk() { m_pressOk = true; }

signals:
    /// A box is on the screen and has not been answered yet.
    void boxShown(QWidget *box);

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    void answer(QMessageBox *box);

    QStringList m_boxes;
    bool m_pressOk = false;
};
