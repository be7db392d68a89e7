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
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

const QString DigitsOnly = u"ช่องนี้ กรอกได้แค่ ( ตัวเลข ) เท่านั้น !!"_s;
const QString LineOnly = u"ช่องนี้ กรอกได้แค่ (ตัวเลข) เท่านั้น !!"_s;

/// A form that has nothing but the guarded fields that its name calls for.
class GuardedForm : public QWidget
{
public:
    explicit GuardedForm(const char *name)
    {
        setObjectName(QLatin1String(name));
        auto *column = new QVBoxLayout(this);
        for (const FieldRule &rule : FieldTable) {
            if (objectName() != QLatin1String(rule.form))
                continue;
            auto *field = new QLineEdit(this);
            field->setObjectName(QLatin1String(rule.field));
            column->addWidget(field);
            m_fields += field;
        }
        new FieldGuard(this, new FocusTracker(this));
        show();
        m_fields.first()->setFocus();
    }

    QLineEdit *first() const { return m_fields.first(); }

private:
    QList<QLineEdit *> m_fields;
};

void typeText(QWidget *field, const QString &text)
{
    for (const QChar letter : text)
        QTest::sendKeyEvent(QTest::Click, field, Qt::Key(letter.unicode()), letter, Qt::NoModifier);
}

} // namespace

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
    void resultBoxesHandTheFocusOn();
    void comboTextHasALimit();
};

void FieldsTest::onlyDigitsAreTaken_data()
{
    QTest::addColumn<QString>("form");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("boxes");
    QTest::newRow("a letter") << u"Setting"_s << u"12a"_s << u"12"_s << QStringList(DigitsOnly);
    QTest::newRow("a dash in a plain field")
        << u"Setting"_s << u"1-2"_s << u"12"_s << QStringList(DigitsOnly);
    QTest::newRow("a dash in the entry field")
        << u"Form1"_s << u"1-2"_s << u"1-2"_s << QStringList();
    QTest::newRow("Thai digits and letters")
        << u"Form1"_s << u"1๒ก"_s << u"1"_s << QStringList({LineOnly, LineOnly});
    QTest::newRow("a blank") << u"Form1"_s << u"1 "_s << u"1"_s << QStringList(LineOnly);
    QTest::newRow("beyond the longest text, silently")
        << u"Setting"_s << u"123456"_s << u"1234"_s << QStringList();
}

void FieldsTest::onlyDigitsAreTaken()
{
    QFETCH(QString, form);
    QFETCH(QString, typed);
    const BoxScript script;
    const GuardedForm guarded(qPrintable(form));
    typeText(guarded.first(), typed);
    QTEST(guarded.first()->text(), "text");
    QTEST(script.texts(), "boxes");
}

void FieldsTest::keysWithoutACharacterPass()
{
    const BoxScript script;
    const GuardedForm form("Form1");
    typeText(form.first(), u"1234"_s);
    QTest::keyClick(form.first(), Qt::Key_Home);
    QTest::keyClick(form.first(), Qt::Key_Delete);
    QTest::keyClick(form.first(), Qt::Key_End);
    QTest::keyClick(form.first(), Qt::Key_Backspace);
    QTest::keyClick(form.first(), Qt::Key_F5);
    QCOMPARE(form.first()->text(), u"23"_s);
    QCOMPARE(script.texts(), QStringList());
    QTest::keyClick(form.first(), Qt::Key_Escape); // a character like any other
    QTest::keyClick(form.first(), Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(script.texts(), QStringList({LineOnly, LineOnly}));
}

void FieldsTest::noOtherWayIn()
{
    const BoxScript script;
    const GuardedForm form("Form1");
    for (const auto mode : {QClipboard::Clipboard, QClipboard::Selection})
        QApplication::clipboard()->setText(u"ab"_s, mode);
    QTest::keyClick(form.first(), Qt::Key_V, Qt::ControlModifier);
    QTest::keyClick(form.first(), Qt::Key_Insert, Qt::ShiftModifier);
    QTest::sendKeyEvent(QTest::Click, form.first(), Qt::Key_X, u'x', Qt::AltModifier);
    QTest::sendKeyEvent(QTest::Click, form.first(), Qt::Key_Plus, u'+',
                        Qt::ControlModifier | Qt::KeypadModifier);
    QTest::mouseClick(form.first(), Qt::MiddleButton);
    QMimeData dropped;
    dropped.setText(u"ab"_s);
    QDragEnterEvent enter({2, 2}, Qt::CopyAction, &dropped, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(form.first(), &enter);
    QDropEvent drop({2, 2}, Qt::CopyAction, &dropped, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(form.first(), &drop);
    QInputMethodEvent composed;
    composed.setCommitString(u"ab"_s);
    QApplication::sendEvent(form.first(), &composed);
    QCOMPARE(form.first()->text(), QString());
    QCOMPARE(script.texts(), QStringList(LineOnly)); // of Ctrl+V
}

void FieldsTest::rightClickIsAnswered_data()
{
    QTest::addColumn<QString>("form");
    QTest::addColumn<QString>("words");
    QTest::newRow("the entry field") << u"Form1"_s << u"ห้ามคลิกขวาในช่องนี้ !!"_s;
    QTest::newRow("any other") << u"Form4"_s << LineOnly;
}

void FieldsTest::rightClickIsAnswered()
{
    QFETCH(QString, form);
    const BoxScript script;
    const GuardedForm guarded(qPrintable(form));
    QTest::mouseClick(guarded.first(), Qt::RightButton);
    QCOMPARE(script.boxes().size(), 1);
    QTEST(script.boxes().first().text, "words");
    QCOMPARE(script.boxes().first().title, u"รายงานความผิดพลาด"_s);
}

void FieldsTest::resultBoxesHandTheFocusOn()
{
    const BoxScript script;
    GuardedForm form("Form4");
    const auto focus = [] { return QApplication::focusWidget()->objectName(); };
    QVERIFY(QTest::qWaitForWindowActive(&form));
    typeText(QApplication::focusWidget(), u"7"_s);
    QCOMPARE(focus(), u"text5"_s);
    typeText(QApplication::focusWidget(), u"a"_s); // a refused key moves on as well
    QCOMPARE(focus(), u"text6"_s);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return); // stops at the end of a prize
    QCOMPARE(focus(), u"text6"_s);
    typeText(QApplication::focusWidget(), u"7"_s);
    QCOMPARE(focus(), u"text8"_s);
    QCOMPARE(script.texts(), QStringList(DigitsOnly));
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
