// SPDX-License-Identifier: MIT
// Every form as those need it who use no mouse, a screen reader, large type or a dark desktop.
#include "access/look.h"
#include "desktop/programfolder.h"
#include "ledger/ledger.h"
#include "support/formtest.h"
#include "widgets/combo.h"

#include <QAccessible>
#include <QRadioButton>

using namespace Qt::StringLiterals;

namespace {

/// The way to a form: a page, and what is worked there one after another. A button is pressed, the
/// first row of a grid is opened with Enter, into other controls "control=text" is typed.
struct Way
{
    const char *form;
    int page;
    const char16_t *steps;
};

constexpr Way Ways[] = {
    {"Form1", 0, u"Combo2=1,Tnumber=123-99999\n,Combo1=สมชาย"},
    {"Form1 bottom", 0, u"SSTab1"},
    {"Form2", 1, u"fpSpread1"},
    {"Form3", 2, u""},
    {"Form3 bottom", 2, u"SSTab1"},
    {"Form3 without the bar", 2, u"lvButtons_H1"},
    {"Form3 of one customer", 2, u"Combo1=สมชาย สายบุญมาก\n"},
    {"Form4", 3, u"text4=12312312312312323,Command18"},
    {"Form5", 4, u""},
    {"Setting", 0, u"lvButtons_H5"},
    {"ShowKey", 0, u"Label12"},
    {"CutNum", 2, u"fpSpread1,fpSpread1"},
    {"Numcut", 2, u"lvButtons_H4"},
    {"ViKoC", 2, u"lvButtons_H6,lvButtons_H0"},
    {"ViKoC bottom", 2, u"lvButtons_H6,lvButtons_H1"},
    {"Number", 2, u"lvButtons_H6,lvButtons_H0,fpSpread1"},
    {"FPrint1", 3, u"text4=12312312312312323,Command18,lvButtons_H5"},
    {"Fprint2", 2, u"lvButtons_H5"},
    {"Fprint3", 2, u"lvButtons_H4,lvButtons_H5"},
};

/// A book with amounts and names as long as an agent meets them.
void fillBook(const TestLedger &ledger)
{
    ledger.addMember(1, u"สมชาย สายบุญมาก"_s, u"10"_s);
    ledger.addMember(2, u"ร้านลุงหมู ปากซอยสี่"_s, u"5"_s);
    ledger.run(u"UPDATE tblMember SET Mber = '0812345678'"_s);
    for (const QString &table : {u"tblNumber"_s, u"tblNumberCut"_s})
        ledger.run(
            u"INSERT INTO %1 (NameFK, num23, updown, numType, numValue, numBuy, nuser)"
            " SELECT MPK, line.*, 250000, 'sv' FROM tblMember,"
            " (VALUES (3, -1, 1, '123'), (3, -1, 2, '123'), (2, -1, 1, '23'),"
            " (2, -1, 2, '23'), (1, -1, 3, '1'), (3, 0, 1, '123'), (2, 0, 1, '23'),"
            " (1, 0, 3, '2'), (3, -1, 1, '231'), (2, 0, 1, '32')) AS line WHERE MPK > 0"_s.arg(
                table));
    ledger.run(u"INSERT INTO tblNumLog (num3up, num3down1, num3down2, num3down3, num3down4, "
               "num2down, numdate, moneyup, moneydown) VALUES ('123', '123', '456', '789', '012', "
               "'23', '2026-11-16', -125999999, 125999999)"_s);
    ledger.run(u"INSERT INTO tblNumberFix (Fnumber) VALUES ('231'), ('45')"_s);
}

QPalette darkDesktop()
{
    QPalette colors(QColor(0x3A, 0x3A, 0x3A), QColor(0x2D, 0x2D, 0x2D));
    colors.setColor(QPalette::Base, QColor(0x25, 0x25, 0x25));
    colors.setColor(QPalette::AlternateBase, QColor(0x30, 0x30, 0x30));
    return colors;
}

/// What can be worked on a form. An edit field within a control is part of it.
QWidgetList controlsOf(const QWidget *form)
{
    QWidgetList controls = form->findChildren<QWidget *>();
    controls.removeIf([form](const QWidget *each) {
        const bool worked = each->focusPolicy() != Qt::NoFocus || each->inherits("QAbstractButton");
        return !worked || each->focusProxy() || !each->isVisible() || !each->isEnabled()
               || each->window() != form;
    });
    return controls;
}

/// The controls that Tab passes, from the one that has the focus until it comes to one again.
QWidgetList tabRound(Qt::KeyboardModifiers modifiers)
{
    QWidgetList round;
    for (QWidget *at = Hands::focus(); !round.contains(at); at = Hands::focus()) {
        round += at;
        QTest::keyClick(at, modifiers ? Qt::Key_Backtab : Qt::Key_Tab, modifiers);
    }
    return round;
}

/// Of several radio buttons Tab passes one; the arrow keys go on from there.
bool isPassed(const QWidget *control, const QWidgetList &round)
{
    const auto *radio = qobject_cast<const QRadioButton *>(control);
    return std::any_of(round.begin(), round.end(), [&](const QWidget *passed) {
        return passed == control
               || (radio && qobject_cast<const QRadioButton *>(passed)
                   && passed->parent() == control->parent());
    });
}

/// To the left in the same line, or above in the same column.
bool comesBefore(const QWidget *one, const QWidget *other, const QWidget *form)
{
    const QRect first(one->mapTo(form, QPoint()), one->size());
    const QRect second(other->mapTo(form, QPoint()), other->size());
    const bool sameLine = first.top() <= second.center().y() && second.top() <= first.center().y();
    const bool sameColumn = first.left() <= second.right() && second.left() <= first.right();
    return sameLine ? first.left() < second.left() : sameColumn && first.top() < second.top();
}

} // namespace

class AccessTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();

    void controlsHaveNames_data() { addForms(); }
    void controlsHaveNames();
    void keysReachEverything_data() { addForms(); }
    void keysReachEverything();
    void nothingIsCutOff_data() { addForms(); }
    void nothingIsCutOff();
    void everythingCanBeRead_data();
    void everythingCanBeRead();

private:
    static void addForms();
    void start(const QPalette &colors);
    void walk(QWidget *form, QStringList steps, const std::function<void(QWidget *form)> &work);
    void compareFaults(const std::function<QStringList(QWidget *form)> &look);

    std::optional<TestLedger> m_ledger;
    std::optional<Hands> m_hands;
    std::unique_ptr<MDIForm1> m_window;
};

void AccessTest::initTestCase()
{
    m_ledger.emplace();
    copyProgramData(QCoreApplication::applicationDirPath(), programFolder());
    fillBook(*m_ledger);
    m_hands.emplace();
    start(QApplication::palette());
}

void AccessTest::start(const QPalette &colors)
{
    m_window.reset();
    CloseLedger();
    QApplication::setPalette(colors);
    m_window = startProgram();
    QVERIFY(m_window && QTest::qWaitForWindowActive(m_window.get()));
}

void AccessTest::cleanupTestCase()
{
    m_window.reset();
    m_ledger.reset();
}

void AccessTest::addForms()
{
    QTest::addColumn<Way>("way");
    for (const Way &way : Ways)
        QTest::newRow(way.form) << way;
}

/// Does a step and goes on in the dialog that it has opened, or in the same form.
void AccessTest::walk(QWidget *form, QStringList steps,
                      const std::function<void(QWidget *form)> &work)
{
    if (steps.isEmpty())
        return work(form);
    const QString control = steps.first().section(u'=', 0, 0);
    const QString text = steps.takeFirst().section(u'=', 1);
    bool opened = false;
    m_hands->inNextDialog([&](QWidget *dialog) {
        opened = true;
        QVERIFY(Hands::focusComesTo(dialog));
        walk(dialog, steps, work);
        dialog->close();
    });
    const auto *page = form == m_window.get() ? m_window->page() : nullptr;
    auto *worked =
        (page && page->findChild<QWidget *>(control) ? page : form)->findChild<QWidget *>(control);
    QVERIFY2(worked, qPrintable(control));
    if (auto *grid = qobject_cast<Spread *>(worked)) {
        grid->setFocus();
        grid->setActiveRow(1);
        Hands::press(Qt::Key_Return);
    } else if (auto *tabs = qobject_cast<QTabBar *>(worked)) {
        tabs->setCurrentIndex(0);
    } else if (auto *list = qobject_cast<Combo *>(worked); list && !list->isEditable()) {
        list->setListIndex(text.toInt());
    } else if (text.isEmpty()) {
        Hands::click(worked);
    } else {
        worked->setFocus();
        if (list)
            list->lineEdit()->selectAll();
        for (const QChar letter : text)
            letter == u'\n' ? Hands::press(Qt::Key_Return) : Hands::type(letter);
    }
    QApplication::processEvents();
    if (opened)
        return;
    m_hands->inNextDialog({});
    walk(form, steps, work);
}

/// Fails if a look at the form finds fault. Saves a picture where the environment's DESK_PICTURES
/// names a folder.
void AccessTest::compareFaults(const std::function<QStringList(QWidget *form)> &look)
{
    QFETCH(Way, way);
    QStringList faults{u"not opened"_s};
    m_window->openPage(way.page);
    walk(m_window.get(), QString::fromUtf16(way.steps).split(u',', Qt::SkipEmptyParts),
         [&](QWidget *form) {
             QApplication::processEvents();
             if (const QString folder = qEnvironmentVariable("DESK_PICTURES"); !folder.isEmpty())
                 form->grab().save(folder + u'/' + QLatin1String(QTest::currentTestFunction())
                                   + QLatin1String(QTest::currentDataTag()) + u".png"_s);
             faults = look(form);
         });
    faults += m_hands->takeBoxes();
    if (!faults.isEmpty())
        QFAIL(qUtf8Printable(u'\n' + faults.join(u'\n')));
}

void AccessTest::controlsHaveNames()
{
    compareFaults([](QWidget *form) {
        QStringList faults;
        QSet<QPair<QString, int>> known;
        for (QWidget *control : controlsOf(form)) {
            auto &told = *QAccessible::queryAccessibleInterface(control);
            const QString name = told.text(QAccessible::Name).trimmed();
            if (name.isEmpty())
                faults += control->objectName() + u" has no name"_s;
            else if (known.contains({name, told.role()}))
                faults += control->objectName() + u" has the name of another, "_s + name;
            known += {name, told.role()};
        }
        return faults;
    });
}

void AccessTest::keysReachEverything()
{
    compareFaults([](QWidget *form) {
        QStringList faults;
        QWidgetList backwards = tabRound(Qt::ShiftModifier);
        const QWidgetList round = tabRound({});
        std::reverse(backwards.begin() + 1, backwards.end());
        if (backwards != round)
            faults += u"Tab and Shift+Tab do not pass the same"_s;
        for (const QWidget *control : controlsOf(form)) {
            if (!isPassed(control, round))
                faults += control->objectName() + u" is not passed by Tab"_s;
        }
        QWidgetList order = round; // what only shows something, and a rare choice, come last
        order.removeIf([](const QWidget *each) {
            return each->property("readOnly").toBool() || qobject_cast<const QRadioButton *>(each);
        });
        QStringList back;
        for (qsizetype at = 0; at < order.size(); ++at) {
            const QWidget *before = order[(at + order.size() - 1) % order.size()];
            if (comesBefore(order[at], before, form))
                back += before->objectName() + u" to "_s + order[at]->objectName();
        }
        if (back.size() > 1) // from the last control to the first it has to go back
            faults += u"Tab goes back from "_s + back.join(u", "_s);
        return faults;
    });
}

/// At the scale that the process was started with.
void AccessTest::nothingIsCutOff()
{
    compareFaults(cutOffIn);
}

void AccessTest::everythingCanBeRead_data()
{
    QTest::addColumn<Way>("way");
    QTest::addColumn<QPalette>("colors");
    for (const bool dark : {false, true}) {
        for (const Way &way : Ways)
            QTest::addRow("%s, %s", way.form, dark ? "dark" : "light")
                << way << (dark ? darkDesktop() : QApplication::palette());
    }
}

void AccessTest::everythingCanBeRead()
{
    QFETCH(QPalette, colors);
    if (QApplication::palette().color(QPalette::Window) != colors.color(QPalette::Window))
        start(colors);
    compareFaults(faintIn);
}

int main(int argc, char **argv)
{
    return runFormTest<AccessTest>(argc, argv);
}
#include "test_access.moc"
