// SPDX-License-Identifier: MIT
#include "entry/showkey.h"

#include "entry/keyboardpicture.h"
#include "widgets/pushbutton.h"

#include <QPointer>
#include <QScreen>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

// Not a child of the main window: a child would stay above it and cover the entry field.
ShowKey::ShowKey(QWidget *owner)
{
    setObjectName(u"ShowKey"_s);
    setWindowTitle(u"คีย์ลัด"_s);
    auto *picture = new KeyboardPicture(this);
    picture->setAccessibleName(windowTitle());
    auto *leave = new PushButton(u"ออกจากหน้านี้"_s, this);
    leave->setObjectName(u"leave"_s);
    auto *column = new QVBoxLayout(this);
    column->addWidget(picture, 1);
    column->addWidget(leave, 0, Qt::AlignRight);
    connect(leave, &QPushButton::clicked, this, &QDialog::reject);
    connect(owner, &QObject::destroyed, this, [this] { delete this; });
    connect(this, &QDialog::finished, owner, [this, owner] {
        owner->activateWindow(); // without a window manager nothing else does
        deleteLater();
    });
}

void ShowKey::open(QWidget *owner)
{
    static QPointer<ShowKey> opened;
    ShowKey *window = opened;
    if (!window) {
        window = new ShowKey(owner);
        opened = window;
        const QRect desktop = owner->screen()->availableGeometry();
        window->resize(window->sizeHint().boundedTo(desktop.size() * 0.95));
        window->move(desktop.center() - window->rect().center());
    }
    window->show();
    window->raise();
    window->activateWindow();
}
