// SPDX-License-Identifier: MIT
// The player on the pages beside bet entry: customers and settings.
#include "tour/player.h"

#include "shell/mdiform1.h"
#include "widgets/pushbutton.h"

#include <QLineEdit>
#include <QTest>

using namespace Qt::StringLiterals;

PushButton *Player::navigation(int button) const
{
    const auto *bar = m_window.findChild<QWidget *>(u"navigation"_s);
    return bar->findChild<PushButton *>(u"lvButtons_H%1"_s.arg(button));
}

void Player::addCustomers(const QList<DrawMember> &members)
{
    Hands::click(navigation(1));
    for (const DrawMember &member : members) {
        Hands::click(control<QLineEdit>("Tname"));
        for (const QString &text : {member.name, member.telephone, member.percent}) {
            Hands::type(text);
            Hands::press(Qt::Key_Return);
        }
        m_hands.answerNextWithOk();
        Hands::click(control<PushButton>("lvButtons_H0"));
        const QString question = u"คุณแน่ใจว่าต้องการเพิ่มข้อมูล \n\n[ %1 ][ %2 ][ %3 %]"_s.arg(
            member.name, member.telephone, member.percent);
        compare(u"boxes of a new customer"_s,
                question + u"\nบันทึก รายการ เข้าสู่ระบบงานฐานข้อมูลเรียบร้อย."_s,
                m_hands.takeBoxes().join(u'\n'));
    }
    takePicture(u"customers"_s);
}

void Player::addHotNumbers(const QStringList &numbers)
{
    m_hands.inNextDialog([&](QWidget *settings) {
        auto *field = settings->findChild<QLineEdit *>(u"text9"_s);
        if (!Hands::focusComesTo(settings))
            compare(u"settings"_s, u"in front"_s, u"behind"_s);
        for (const QString &number : numbers) {
            Hands::click(field);
            Hands::type(number);
            m_hands.answerNextWithOk();
            Hands::press(Qt::Key_Return);
            compare(u"field of hot numbers"_s, QString(), field->text());
        }
        takePicture(u"settings"_s, settings);
        settings->close();
    });
    Hands::click(navigation(5)); // returns when the dialog has been closed
    if (!Hands::focusComesTo(&m_window))
        compare(u"main window after the settings"_s, u"in front"_s, u"behind"_s);
    compare(u"boxes of the hot numbers"_s, QString::number(numbers.size()),
            QString::number(m_hands.takeBoxes().size()));
}
