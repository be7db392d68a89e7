// SPDX-License-Identifier: MIT
// Number fields: nothing but what the filter passes gets in, by whatever way.
#include "desktop/application.h"
#include "desktop/focustracker.h"
#include "desktop/keycodes.h"
#include "fields/fieldguard.h"
#include "fields/filters.h"
#include "support/boxscript.h"

#include <QClipboard>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QMimeData>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString DigitsOnly = u"ช่องนี้ กรอกได้แค่ ( ตัวเลข ) เท่านั้น !!"_s;
const QString LineOnly = u"ช่องนี้ กรอกได้แค่ (ตัวเลข) เท่านั้น !!"_s;

/// A form with one field, of four digits or of a keyed line.
class GuardedForm : public QWidget
{
public:
    explicit GuardedForm(FieldFilter filter) : m_field(new QLineEdit(this))
    {
        new FieldGuard(this, new FocusTracker(this),
                       {{.field = m_field, .longest = 4, .filter = filter}});
        show();
        m_field->setFocus();
    }

    QLineEdit *field() const { return m_field; }

private:
    QLineEdit *m_field;
};

void typeText(QWidget *field, const QString &text)
{
    for (const QChar letter : text)
        QTest::sendKeyEvent(QTest::Click, field, Qt::Key(letter.unicode()), letter, Qt::NoModifier);
}

} // namespace

Q_DECLARE_METATYPE(FieldFilter)

class FieldsTest : public QObject
{
    Q_OBJECT

private slots:
    void onlyDigitsAreTaken_data();
    void onlyDigitsAreTaken();
    void keysWithoutACharacterPass();
    void noOtherWayIn();
    void rightClickIsAnswered_data();
    void rightClickIsAnswered();
    void comboTextHasALimit();
};

void FieldsTest::onlyDigitsAreTaken_data()
{
    QTest::addColumn<FieldFilter>("filter");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("boxes");
    QTest::newRow("a letter") << FieldFilter::Digits << u"12a"_s << u"12"_s
                              << QStringList(DigitsOnly);
    QTest::newRow("a dash in a plain field")
        << FieldFilter::Digits << u"1-2"_s << u"12"_s << QStringList(DigitsOnly);
    QTest::newRow("a dash in the entry field")
        << FieldFilter::Line << u"1-2"_s << u"1-2"_s << QStringList();
    QTest::newRow("Thai digits and letters")
        << FieldFilter::Line << u"1๒ก"_s << u"1"_s << QStringList({LineOnly, LineOnly});
    QTest::newRow("a blank") << FieldFilter::Line << u"1 "_s << u"1"_s << QStringList(LineOnly);
    QTest::newRow("beyond the longest text, silently")
        << FieldFilter::Digits << u"123456"_s << u"1234"_s << QStringList();
}

void FieldsTest::onlyDigitsAreTaken()
{
    QFETCH(FieldFilter, filter);
    QFETCH(QString, typed);
    const BoxScript script;
    const GuardedForm guarded(filter);
    typeText(guarded.field(), typed);
    QTEST(guarded.field()->text(), "text");
    QTEST(script.texts(), "boxes");
}

void FieldsTest::keysWithoutACharacterPass()
{
    const BoxScript script;
    const GuardedForm form(FieldFilter::Line);
    typeText(form.field(), u"1234"_s);
    QTest::keyClick(form.field(), Qt::Key_Home);
    QTest::keyClick(form.field(), Qt::Key_Delete);
    QTest::keyClick(form.field(), Qt::Key_End);
    QTest::keyClick(form.field(), Qt::Key_Backspace);
    QTest::keyClick(form.field(), Qt::Key_F5);
    QCOMPARE(form.field()->text(), u"23"_s);
    QCOMPARE(script.texts(), QStringList());
    QTest::keyClick(form.field(), Qt::Key_Escape); // a character like any other
    QTest::keyClick(form.field(), Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(script.texts(), QStringList({LineOnly, LineOnly}));
}

void FieldsTest::noOtherWayIn()
{
    const BoxScript script;
    const GuardedForm form(FieldFilter::Line);
    for (const auto mode : {QClipboard::Clipboard, QClipboard::Selection})
        QApplication::clipboard()->setText(u"ab"_s, mode);
    QTest::keyClick(form.field(), Qt::Key_V, Qt::ControlModifier);
    QTest::keyClick(form.field(), Qt::Key_Insert, Qt::ShiftModifier);
    QTest::sendKeyEvent(QTest::Click, form.field(), Qt::Key_X, u'x', Qt::AltModifier);
    QTest::sendKeyEvent(QTest::Click, form.field(), Qt::Key_Plus, u'+',
                        Qt::ControlModifier | Qt::KeypadModifier);
    QTest::mouseClick(form.field(), Qt::MiddleButton);
    QMimeData dropped;
    dropped.setText(u"ab"_s);
    QDragEnterEvent enter({2, 2}, Qt::CopyAction, &dropped, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(form.field(), &enter);
    QDropEvent drop({2, 2}, Qt::CopyAction, &dropped, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(form.field(), &drop);
    QInputMethodEvent composed;
    composed.setCommitString(u"ab"_s);
    QApplication::sendEvent(form.field(), &composed);
    QCOMPARE(form.field()->text(), QString());
    QCOMPARE(script.texts(), QStringList(LineOnly)); // of Ctrl+V
}

void FieldsTest::rightClickIsAnswered_data()
{
    QTest::addColumn<FieldFilter>("filter");
    QTest::addColumn<QString>("words");
    QTest::newRow("the entry field") << FieldFilter::Line << u"ห้ามคลิกขวาในช่องนี้ !!"_s;
    QTest::newRow("any other") << FieldFilter::Digits << LineOnly;
}

void FieldsTest::rightClickIsAnswered()
{
    QFETCH(FieldFilter, filter);
    const BoxScript script;
    const GuardedForm guarded(filter);
    QTest::mouseClick(guarded.field(), Qt::RightButton);
    QCOMPARE(script.boxes().size(), 1);
    QTEST(script.boxes().first().text, "words");
    QCOMPARE(script.boxes().first().title, u"รายงานความผิดพลาด"_s);
}

void FieldsTest::comboTextHasALimit()
{
    QCOMPARE(MaxLengthFilter(49, 50, u'a'), int(u'a'));
    QCOMPARE(MaxLengthFilter(50, 50, u'a'), 0);
    QCOMPARE(MaxLengthFilter(50, 50, BackspaceCode), BackspaceCode);
}

int main(int argc, char **argv)
{
    const Application application(argc, argv);
    FieldsTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "test_fields.moc"
