// SPDX-License-Identifier: MIT
// The picture of a keyboard with the kind that each key chooses written on it.
#pragma once

#include <QWidget>

/// Drawn from the table of kind keys, so that it cannot differ from what the keys do, and as
/// vectors, so that it is sharp at any scale.
class KeyboardPicture : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
};
