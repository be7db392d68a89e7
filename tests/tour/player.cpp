// SPDX-License-Identifier: MIT
#include "tour/player.h"

#include "entry/showkey.h"
#include "entry/voice.h"
#include "ledger/ledger.h"
#include "runtime/values.h"
#include "shell/mdiform1.h"
#include "widgets/combo.h"
#include "widgets/pushbutton.h"
#include "widgets/spread.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QTest>

using namespace Qt::StringLiterals;

Player::Player(MDIForm1 &window, const QString &pictures, const QString &name, Kinds kinds)
    : m_window(window), m_pictures(pictures), m_name(name), m_kinds(kinds)
{
    QObject::connect(&m_hands, &Hands::boxShown, &m_window,
                     [this](QWidget *box) { takePicture(u"box"_s, box); });
}

void Player::play(const Draw &draw)
{
    takePicture(u"start"_s);
    addCustomers(draw.members);
    addHotNumbers(draw.hotNumbers);
    Hands::click(navigation(0));
    if (m_kinds == Kinds::ByKey) {
        showKeys();
        Hands::click(control<QCheckBox>("C01"));
        Hands::click(control<QLineEdit>("Tnumber"));
    }
    for (const DrawTicket &ticket : draw.tickets)
        playTicket(ticket);
    checkBook(draw.book);
    visitScan(draw);
    visitBoard(draw);
}

void Player::playTicket(const DrawTicket &ticket)
{
    ++m_ticket;
    for (const DrawLine &line : ticket.lines)
        playLine(line);
    chooseCustomer(ticket.customer);
    compare(u"total"_s, ticket.total, control<QLineEdit>("text1")->text());
    compare(u"discount"_s, ticket.discount, control<QLineEdit>("text3")->text());
    compare(u"rows"_s, ticket.rows.join(u'\n'), shownRows().join(u'\n'));
    takePicture(u"ticket%1"_s.arg(m_ticket));
    save();
}

void Player::playLine(const DrawLine &line)
{
    ++m_linesKeyed;
    chooseKind(line.kind);
    Hands::type(line.text);
    takePicture(u"keying"_s);
    Hands::press(Qt::Key_Return);
    QApplication::processEvents();
    compare(u"boxes after "_s + line.kind + u' ' + line.text, line.refusal,
            m_hands.takeBoxes().join(u'\n'));
    clearField();
}

void Player::chooseKind(const QString &caption)
{
    if (control<QLabel>("Label3")->text() == caption)
        return;
    const auto *const entry =
        std::find_if(KindEntries.begin(), KindEntries.end(),
                     [&](const auto &kind) { return caption == kind.caption; });
    const int index = int(entry - KindEntries.begin());
    if (m_kinds == Kinds::ByKey)
        chooseByKey(index);
    else
        chooseFromList(index);
    compare(u"kind"_s, caption, control<QLabel>("Label3")->text());
}

void Player::chooseFromList(int index)
{
    auto *combo = control<Combo>("Combo2");
    combo->showPopup();
    takePicture(u"kinds"_s, combo->view()->window());
    const auto entry = combo->model()->index(index, 0);
    combo->view()->scrollTo(entry);
    const QPoint place = combo->view()->visualRect(entry).center();
    QTest::mouseMove(combo->view()->viewport(), place);
    QTest::mouseClick(combo->view()->viewport(), Qt::LeftButton, {}, place);
    if (!QTest::qWaitFor([&] { return control<QLineEdit>("Tnumber")->hasFocus(); }))
        compare(u"focus after choosing a kind"_s, u"Tnumber"_s, u"elsewhere"_s);
}

void Player::chooseByKey(int index)
{
    constexpr int F1 = 112;
    for (const KindKey &key : KindKeys) {
        if (indexOfKind(key.kind) == index)
            Hands::press(key.codes[0] >= F1 ? Qt::Key(Qt::Key_F1 + key.codes[0] - F1)
                                            : Qt::Key_End);
    }
}

void Player::showKeys()
{
    Hands::click(control<PushButton>("Label12"));
    const QWidgetList windows = QApplication::topLevelWidgets();
    const auto found = std::find_if(windows.begin(), windows.end(), [](const QWidget *window) {
        return window->objectName() == u"ShowKey"_s;
    });
    QWidget *keys = found == windows.end() ? nullptr : *found;
    if (!keys || !Hands::focusComesTo(keys))
        compare(u"picture of the keys"_s, u"in front"_s, u"not shown"_s);
    takePicture(u"keys"_s, keys);
    Hands::press(Qt::Key_Escape);
    if (!Hands::focusComesTo(&m_window))
        compare(u"main window after the keys"_s, u"in front"_s, u"behind"_s);
    Hands::click(control<QLineEdit>("Tnumber"));
}

void Player::chooseCustomer(const QString &name)
{
    Hands::press(Qt::Key_Tab); // from the entry field to the names
    QApplication::focusWidget()->findChild<QLineEdit *>()->selectAll();
    for (const QChar letter : name) {
        if (control<Combo>("Combo1")->currentText() != name)
            Hands::type(letter);
    }
    compare(u"customer"_s, name, control<QLineEdit>("Tname")->text());
}

void Player::clearField()
{
    const auto *field = control<QLineEdit>("Tnumber");
    for (auto left = field->text().size(); left > 0; --left)
        Hands::press(Qt::Key_Backspace);
    compare(u"entry field"_s, QString(), field->text());
}

void Player::save()
{
    Hands::click(control<PushButton>("lvButtons_H0"));
    const QStringList boxes = m_hands.takeBoxes();
    compare(u"boxes of the save"_s, u"คุณแน่ใจว่าต้องการเพิ่มข้อมูล ตัวเลข เหล่านี้ ลงฐานข้อมูล ? . . ."_s,
            boxes.join(u'\n'));
    compare(u"total after the save"_s, u"0"_s, control<QLineEdit>("text1")->text());
    compare(u"rows after the save"_s, QString(), shownRows().join(u'\n'));
    Hands::click(control<QLineEdit>("Tnumber"));
}

QStringList Player::shownRows() const
{
    QStringList rows;
    for (int at = 0; at < ClassCount; ++at) {
        const auto *grid = control<Spread>(qPrintable(u"fpSpread%1"_s.arg(at + 1)));
        for (int row = 1; row <= grid->rows(); ++row)
            rows += grid->text(FirstHeaderRow, 1) + u'\t' + grid->text(row, 1) + u'\t'
                    + grid->text(row, 2);
    }
    return rows;
}

void Player::checkBook(const QString &expected)
{
    const QVariantList lines =
        LedgerConnection->run(u"SELECT count(*), sum(numBuy) FROM tblNumber"_s).rows[0];
    const QVariantList discounts =
        LedgerConnection->run(u"SELECT sum(rMoney) FROM tblRMoney"_s).rows[0];
    const QStringList found{lines[0].toString(), lines[1].toString(), discounts[0].toString()};
    QString plain = expected;
    compare(u"book"_s, plain.remove(u','), found.join(u'\t'));
}

void Player::compare(const QString &what, const QString &expected, const QString &found)
{
    if (expected != found)
        m_differences += u"%1, ticket %2, %3:\n  expected %4\n  found    %5"_s.arg(
            m_name, QString::number(m_ticket), what, expected, found);
}

void Player::takePicture(const QString &scene, QWidget *widget)
{
    if (m_pictures.isEmpty() || m_scenes.contains(scene))
        return;
    m_scenes.insert(scene);
    QApplication::processEvents();
    QWidget &pictured = widget ? *widget : m_window;
    pictured.grab().save(pictureName(scene));
    // A desktop has types of its own for some controls, which may have no Thai letters.
    const QWidgetList parts = pictured.findChildren<QWidget *>();
    for (const QWidget *part : parts)
        compare(u"type of "_s + part->objectName(), QApplication::font().family(),
                part->font().family());
}

QString Player::pictureName(const QString &scene) const
{
    return m_pictures + u'/' + m_name + u'-' + scene + u".png"_s;
}
