// SPDX-License-Identifier: MIT
#include "customers/form2.h"

#include "ui_form2.h"

#include "desktop/handler.h"
#include "desktop/msgbox.h"
#include "fields/fieldguard.h"
#include "runtime/values.h"

#include <QKeyEvent>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype LongestName = 129;

bool isBlank(const QLineEdit *field)
{
    return trimBlanks(field->text()).isEmpty();
}

} // namespace

Form2::Form2(ProgressBar &progress, QWidget *parent)
    : QWidget(parent), m_ui(std::make_unique<Ui::Form2>()), m_progress(progress), m_focus(this)
{
    m_ui->setupUi(this);
    m_ui->fpSpread1->setSpreadModel(&m_list);
    m_ui->fpSpread1->setColumnDigits(PlaceColumn, 6);
    m_ui->fpSpread1->setColumnDigits(TelephoneColumn, 16);
    m_ui->fpSpread1->setColumnDigits(PercentColumn, 10);
    setFocusProxy(m_ui->Tname);
    connectControls();
    Loaddata(false);
}

Form2::~Form2() = default;

void Form2::connectControls()
{
    new FieldGuard(this, &m_focus,
                   {{.field = m_ui->Tber, .longest = 10, .enterFocuses = m_ui->Tpercen},
                    {.field = m_ui->Tpercen, .longest = 2, .enterFocuses = m_ui->Tname}});
    connectHandler(m_ui->fpSpread1, &Spread::rowPicked, this, &Form2::fpSpread1_RowPicked);
    connectHandler(m_ui->lvButtons_H0, &QPushButton::clicked, this, &Form2::lvButtons_H0_Click);
    connectHandler(m_ui->lvButtons_H1, &QPushButton::clicked, this, &Form2::lvButtons_H1_Click);
    connectHandler(m_ui->lvButtons_H3, &QPushButton::clicked, this, &Form2::lvButtons_H3_Click);
    connectHandler(m_ui->lvButtons_H4, &QPushButton::clicked, this, &Form2::lvButtons_H4_Click);
    connectHandler(m_ui->lvButtons_H5, &QPushButton::clicked, this, &Form2::lvButtons_H5_Click);
    connectHandler(m_ui->cDel, &QPushButton::clicked, this, &Form2::cDel_Click);
    connect(m_ui->Tname, &QLineEdit::returnPressed, m_ui->Tber, qOverload<>(&QWidget::setFocus));
    connectHandler(m_ui->text1, &QLineEdit::returnPressed, this, &Form2::lvButtons_H5_Click);
    connectHandler(m_ui->Tname, &QLineEdit::textEdited, this, &Form2::tidyName);
}

/// Removes line breaks and other control characters from what is typed or pasted. Limits the length
/// to LongestName; only a name picked from the list can be longer, by its leading space.
void Form2::tidyName(const QString &text)
{
    const auto isControl = [](QChar character) { return character < u' '; };
    const auto breaks = std::count_if(text.begin(), text.end(), isControl);
    const int limit = int(std::max(LongestName, text.size() - breaks));
    if (breaks == 0 && limit == m_ui->Tname->maxLength())
        return; // both setters move the cursor to the end
    const auto cursor = m_ui->Tname->cursorPosition() - breaks;
    QString line = text;
    line.removeIf(isControl);
    m_ui->Tname->setMaxLength(limit);
    m_ui->Tname->setText(line);
    m_ui->Tname->setCursorPosition(int(cursor));
}

void Form2::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (!event->spontaneous())
        m_ui->Tname->setFocus();
}

/// Keys that the focused control has not handled. Delete in a text field must never delete a
/// customer, not even with a modifier that the field ignores.
void Form2::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_F5)
        handle([this] { lvButtons_H4_Click(); });
    else if (event->key() == Qt::Key_Delete && !qobject_cast<QLineEdit *>(focusWidget()))
        handle([this] { cDel_Click(); });
    else
        QWidget::keyPressEvent(event);
}

/// Lists all customers or, with @p search, those whose name contains the text searched for. The
/// active customer stays active if the new list contains that customer.
void Form2::Loaddata(bool search)
{
    const QString active = m_list.text(m_ui->fpSpread1->activeRow(), 0);
    const int count =
        listCustomers(m_list, search ? trimBlanks(m_ui->text1->text()) : QString(), m_progress);
    if (count == 0) {
        if (search)
            refuse(u"ไม่พบ ข้อมูล ที่คุณต้องการค้นหาในระบบ โปรดลองอีกครั้ง ( กด F5 เพื่อ รีโหลดข้อมูล ).."_s);
        return;
    }
    m_ui->Frame1->setTitle(u"มีข้อมูลลูกค้าทั้งหมด :  "_s + QString::number(count) + u"  รายการ"_s);
    m_ui->fpSpread1->setActiveRow(std::max(1, m_list.searchColumn(0, active)));
}

void Form2::fpSpread1_RowPicked(int row)
{
    showName(m_list.text(row, NameColumn));
    m_ui->Tber->setText(m_list.text(row, TelephoneColumn));
    m_ui->Tpercen->setText(m_list.text(row, PercentColumn));
}

/// "เพิ่มลูกค้า": adds a customer from the fields.
void Form2::lvButtons_H0_Click()
{
    if (isBlank(m_ui->Tname)) {
        refuse(u"กรุณาระบุ ( ชื่อลูกค้า ) ที่ต้องการ  ก่อนเริ่มบันทึก"_s);
        m_ui->Tname->setFocus();
        return;
    }
    if (isBlank(m_ui->Tber)) {
        refuse(u"กรุณาระบุ ( เบอร์ติดต่อ ) ที่ต้องการ  ก่อนเริ่มบันทึก"_s);
        return;
    }
    const QString name = trimBlanks(m_ui->Tname->text());
    if (countCustomersNamed(name) > 0) {
        refuse(u"มี ชื่อลูกค้า [  "_s + name + u"  ] อยู่ในระบบแล้ว กรุณาแก้ไขใหม่ด้วย."_s);
        m_ui->Tname->setFocus();
        return;
    }
    if (isBlank(m_ui->Tpercen))
        m_ui->Tpercen->setText(u"0"_s);
    if (!confirm(u"คุณแน่ใจว่าต้องการเพิ่มข้อมูล "_s))
        return;
    showName(cleanedName(m_ui->Tname->text()));
    addCustomer({m_ui->Tname->text(), m_ui->Tber->text(), m_ui->Tpercen->text()});
    inform(u"บันทึก รายการ เข้าสู่ระบบงานฐานข้อมูลเรียบร้อย."_s);
    clearFields();
    Loaddata(false);
}

/// "แก้ไขเบอร์": changes the telephone number of the customer in the active row.
void Form2::lvButtons_H1_Click()
{
    change({m_ui->Tber, u"กรุณาระบุ ( เบอร์ติดต่อ ) ที่ต้องการ  ก่อนเริ่มบันทึก"_s,
            u"คุณแน่ใจว่าต้องการแก้ไขเบอร์ ของ "_s, TelephoneField});
}

/// "แก้ไขส่วนลด": changes the discount of the customer in the active row.
void Form2::lvButtons_H3_Click()
{
    change({m_ui->Tpercen, u"กรุณาระบุ ( ส่วนลด ) ที่ต้องการ  ก่อนเริ่มบันทึก"_s,
            u"คุณแน่ใจว่าต้องการแก้ไขส่วนลด ของ "_s, PercentField});
}

void Form2::change(const Change &what)
{
    if (m_list.rows() == 0)
        return;
    const qint32 key = activeKey(); // even if the fields show another customer
    if (isBlank(m_ui->Tname)) {
        refuse(u"กรุณาเลือกรายชื่อ ( ลูกค้า ) ที่ต้องการแก้ไขก่อนดำเนินการ"_s);
        return;
    }
    if (isBlank(what.field)) {
        refuse(what.refusal);
        what.field->setFocus();
        return;
    }
    if (!confirm(what.question))
        return;
    changeCustomer(key, what.column, what.field->text());
    Loaddata(false);
}

/// "รีโหลดข้อมูล(F5)": lists all customers and clears the fields.
void Form2::lvButtons_H4_Click()
{
    m_ui->text1->clear();
    clearFields();
    Loaddata(false);
}

/// "เริ่มค้นหา": lists the customers whose name contains the text searched for.
void Form2::lvButtons_H5_Click()
{
    if (isBlank(m_ui->text1)) {
        m_ui->text1->setFocus();
        return;
    }
    m_ui->text1->setText(cleanedName(m_ui->text1->text()));
    clearFields();
    Loaddata(true);
}

/// "ลบลูกค้า (Del)": deletes the customer in the active row, but not one with bets in this draw. The
/// winner search skips bets of missing customers, so they could never win.
void Form2::cDel_Click()
{
    if (m_list.rows() == 0)
        return;
    const qint32 key = activeKey();
    if (hasLines(key)) {
        refuse(u"ไม่สามารถลบได้ ( ลูกค้ารายนี้มีรายการซื้อในงวดนี้ ) โปรดลบข้อมูลงวดนี้ก่อน . . ."_s);
        return;
    }
    const QString name = trimBlanks(m_list.text(m_ui->fpSpread1->activeRow(), NameColumn));
    if (!ask(u"คุณแน่ใจว่าต้องการลบข้อมูล \n\n[ "_s + name + u" ]"_s, u"ยืนยันการลบข้อมูล"_s,
             BoxIcon::Exclamation, BoxAnswer::Cancel))
        return;
    deleteCustomer(key);
    inform(u"ทำการ ลบข้อมูล ออกจากระบบเรียบร้อยแล้ว."_s);
    clearFields();
    Loaddata(false);
}

/// Asks @p question about the customer in the fields. The title asks to confirm a deletion,
/// although nothing is deleted: users are used to it.
bool Form2::confirm(const QString &question)
{
    return ask(question + u"\n\n[ "_s + m_ui->Tname->text() + u" ][ "_s + m_ui->Tber->text()
                   + u" ][ "_s + m_ui->Tpercen->text() + u" %]"_s,
               u"ยืนยันการลบข้อมูล"_s, BoxIcon::Exclamation, BoxAnswer::Cancel);
}

void Form2::showName(const QString &name)
{
    m_ui->Tname->setMaxLength(int(std::max(LongestName, name.size())));
    m_ui->Tname->setText(name);
}

void Form2::clearFields()
{
    showName({});
    m_ui->Tber->clear();
    m_ui->Tpercen->clear();
}

qint32 Form2::activeKey() const
{
    return CLng(m_list.text(m_ui->fpSpread1->activeRow(), 0));
}
