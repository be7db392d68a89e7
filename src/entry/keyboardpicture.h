// SPDX-License-Identifier: MIT
// The picture of a keyboard that shows which kind each key chooses.
#pragma once

#include <QWidget>

/// The picture is painted from KindKeys, so it always agrees with what the keys do and is sharp at
/// any scale.
class KeyboardPicture : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
};
