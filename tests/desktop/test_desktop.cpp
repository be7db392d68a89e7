// SPDX-License-Identifier: MIT
// What the program asks of a desktop, as far as it stands without windows: grid contents, dates of
// the region, the program's folder and its end.
#include "desktop/keycodes.h"
#include "desktop/programend.h"
#include "desktop/programfolder.h"
#include "desktop/region.h"
#include "support/boxscript.h"
#include "support/outcome.h"
#include "widgets/spreadmodel.h"

#include <QAbstractItemModelTester>
#include <QKeyEvent>
#include <QTest>
#include <QWindow>

#include <array>
#include <string>
#include <utility>

#ifdef Q_OS_WIN
#include <windows.h>
#endif

using namespace Qt::StringLiterals;

#ifdef Q_OS_WIN
namespace {

/// Keeps the key that was pressed in it.
struct KeyWindow : QWindow
{
    void keyPressEvent(QKeyEvent *event) override
    {
        key = event->key();
        code = keyCode(*event);
    }

    int key = 0;
    int code = -1;
};

/// A setting of the user's region; it comes back as it was.
class RegionSetting
{
public:
    explicit RegionSetting(LCTYPE type) : m_type(type)
    {
        GetLocaleInfoW(LOCALE_USER_DEFAULT, m_type, m_before.data(), int(m_before.size()));
    }
    ~RegionSetting() { SetLocaleInfoW(LOCALE_USER_DEFAULT, m_type, m_before.data()); }
    Q_DISABLE_COPY_MOVE(RegionSetting)

    bool set(const std::wstring &value) const
    {
        return SetLocaleInfoW(LOCALE_USER_DEFAULT, m_type, value.c_str());
    }

private:
    LCTYPE m_type;
    std::array<wchar_t, 100> m_before{};
};

} // namespace
#endif

class DesktopTest : public QObject
{
    Q_OBJECT

private slots:
    void gridKeepsItsRowsInOrder();
    void datesOfTheRegion_data();
    void datesOfTheRegion();
    void regionIsThatOfDates();
    void keysAreKnownByTheirPlace_data();
    void keysAreKnownByTheirPlace();
    void driveRootGetsNoSecondSlash();
    void unhandledErrorIsReportedThenAllIsClosed();
};

void DesktopTest::gridKeepsItsRowsInOrder()
{
    SpreadModel grid;
    const QAbstractItemModelTester tellsViewsTheTruth(
        &grid, QAbstractItemModelTester::FailureReportingMode::QtTest);
    grid.setup(2, 3);
    grid.setHeader(FirstHeaderRow + 1, 2, {u"รวม"_s});
    QCOMPARE(grid.text(-999, 2), u"รวม"_s);
    for (const auto &number : {u"12"_s, u"12"_s, u"012"_s, u"123"_s}) {
        grid.insertRow(1);
        grid.setText(1, 1, number);
    }
    QCOMPARE(grid.data(grid.index(1, 1), Qt::DisplayRole), u"012"_s); // a view counts from 0
    QCOMPARE(grid.searchColumn(1, u"12"_s), 3); // the first, and no part of another
    grid.removeRow(1);
    QCOMPARE(grid.text(1, 1), u"012"_s);
    grid.setRows(1);
    QCOMPARE(grid.searchColumn(1, u"12"_s), -1);
    grid.setup(2, 3);
    QCOMPARE(grid.rows(), 0);
    QCOMPARE(grid.text(-999, 2), QString());
}

void DesktopTest::datesOfTheRegion_data()
{
    QTest::addColumn<QString>("region");
    QTest::addColumn<QString>("shortForm");
    QTest::addColumn<QString>("longForm");
    QTest::newRow("a Thai region counts the Buddhist era")
        << u"th_TH"_s << u"22/11/2569"_s << u"วันอาทิตย์ที่ 22 พฤศจิกายน 2569"_s;
    QTest::newRow("British order")
        << u"en_GB"_s << u"22/11/2026"_s << u"Sunday, 22 November 2026"_s;
    QTest::newRow("American order, the year in full all the same")
        << u"en_US"_s << u"11/22/2026"_s << u"Sunday, November 22, 2026"_s;
}

void DesktopTest::datesOfTheRegion()
{
    QFETCH(QString, region);
    const QDate day(2026, 11, 22);
    QTEST(shortDate(day, QLocale(region)), "shortForm");
    QTEST(longDate(day, QLocale(region)), "longForm");
}

void DesktopTest::regionIsThatOfDates()
{
#ifdef Q_OS_WIN
    const QDate day(2026, 11, 2);
    const auto desktopDate = [](DWORD flag) {
        const SYSTEMTIME desktopDay{2026, 11, 0, 2, 0, 0, 0, 0};
        std::array<wchar_t, 100> text{};
        GetDateFormatEx(LOCALE_NAME_USER_DEFAULT, flag, &desktopDay, nullptr, text.data(),
                        int(text.size()), nullptr);
        return QString::fromWCharArray(text.data());
    };
    QCOMPARE(shortDate(day), desktopDate(DATE_SHORTDATE));
    QCOMPARE(longDate(day), desktopDate(DATE_LONGDATE));
    const RegionSetting words(LOCALE_SLONGDATE);
    QVERIFY(words.set(L"yyyy'\u5e74'M'\u6708'd'\u65e5'"));
    QCOMPARE(longDate(day), u"2026\u5e7411\u67082\u65e5"_s);
    // The calendar that the user has chosen decides the era, for the desktop's region alone.
    const RegionSetting calendar(LOCALE_ICALENDARTYPE);
    for (const auto &[chosen, year] :
         {std::pair(CAL_THAI, u"2569"_s), {CAL_GREGORIAN, u"2026"_s}}) {
        QVERIFY(calendar.set(std::to_wstring(chosen)));
        QVERIFY2(shortDate(day).contains(year), qUtf8Printable(shortDate(day)));
        QCOMPARE(shortDate(day, QLocale(u"th_TH"_s)), u"2/11/2569"_s);
    }
#else
    for (const char *variable : {"LC_ALL", "LC_TIME", "LANG"})
        qputenv(variable, "th_TH.UTF-8");
    qputenv("LANG", "en_US.UTF-8");
    qputenv("LANGUAGE", "en");
    QCOMPARE(shortDate({2026, 11, 22}), u"22/11/2569"_s);
    qunsetenv("LC_ALL");
    QCOMPARE(shortDate({2026, 11, 22}), u"22/11/2569"_s);
    qunsetenv("LC_TIME");
    QCOMPARE(shortDate({2026, 11, 22}), u"11/22/2026"_s);
#endif
}

void DesktopTest::keysAreKnownByTheirPlace_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<quint32>("place");
    QTest::addColumn<quint32>("symbol");
    QTest::addColumn<int>("code");
    const auto row = [](const char *name, int key, quint32 place, quint32 symbol, int code) {
        QTest::newRow(name) << key << place << symbol << code;
    };
#ifdef Q_OS_WIN // whose names of keys are the same under every layout
    row("1", Qt::Key_1, 0x02, '1', 49);
    row("1 with Shift", Qt::Key_Exclam, 0x02, '1', 49);
    row("0", Qt::Key_0, 0x0b, '0', 48);
    row("minus with Shift", Qt::Key_Underscore, 0x0c, VK_OEM_MINUS, 189);
    row("minus of the key pad", Qt::Key_Minus, 0x4a, VK_SUBTRACT, 109);
    row("7 of the key pad", Qt::Key_7, 0x47, VK_NUMPAD7, 103);
    row("the same without Num Lock", Qt::Key_Home, 0x47, VK_HOME, 36);
    row("right Ctrl", Qt::Key_Control, 0x11d, VK_CONTROL, 17);
    row("F12", Qt::Key_F12, 0x58, VK_F12, 123);
    row("a letter", Qt::Key_A, 0x1e, 'A', 0);
#else
    row("1", Qt::Key_1, 10, 0x31, 49);
    row("1 with Shift", Qt::Key_Exclam, 10, 0x21, 49);
    row("1 under a Thai layout", 0xe45, 10, 0xde5, 49);
    row("0", Qt::Key_0, 19, 0x30, 48);
    row("minus with Shift", Qt::Key_Underscore, 20, 0x5f, 189);
    row("minus of the key pad", Qt::Key_Minus, 82, 0xffad, 109);
    row("7 of the key pad", Qt::Key_7, 79, 0xffb7, 103);
    row("the same without Num Lock", Qt::Key_Home, 79, 0xff95, 36);
    row("right Ctrl", Qt::Key_Control, 105, 0xffe4, 17);
    row("F12", Qt::Key_F12, 96, 0xffc9, 123);
    row("a letter", Qt::Key_A, 38, 0x61, 0);
#endif
    row("1 where the desktop says nothing", Qt::Key_1, 0, 0, 49);
    row("a letter where it says nothing", Qt::Key_A, 0, 0, 0);
}

void DesktopTest::keysAreKnownByTheirPlace()
{
    QFETCH(int, key);
    QFETCH(quint32, place);
    QFETCH(quint32, symbol);
#ifdef Q_OS_WIN
    if (symbol != 0) { // as the desktop tells it to a window, and the toolkit passes it on
        std::array<BYTE, 256> down{};
        down[VK_LSHIFT] = key == Qt::Key_Exclam || key == Qt::Key_Underscore ? 0x80 : 0;
        KeyWindow window;
        const auto desktopWindow = HWND(window.winId());
        QVERIFY(SetKeyboardState(down.data()));
        SendMessageW(desktopWindow, WM_KEYDOWN, symbol, LPARAM(place << 16 | 1));
        QTRY_COMPARE(window.key, key);
        QTEST(window.code, "code");
        return;
    }
#endif
    QTEST(keyCode(QKeyEvent(QEvent::KeyPress, key, {}, place, symbol, 0)), "code");
}

void DesktopTest::driveRootGetsNoSecondSlash()
{
    setProgramFolder(u"/srv/desk"_s);
    QCOMPARE(programFile(u"data/x"_s), u"/srv/desk/data/x"_s);
    setProgramFolder(u"/"_s);
    QCOMPARE(programFile(u"data/x"_s), u"/data/x"_s);
    setProgramFolder({});
}

void DesktopTest::unhandledErrorIsReportedThenAllIsClosed()
{
    const BoxScript script;
    QStringList closed;
    atProgramEnd([&] { closed += u"the first, after %1 box"_s.arg(script.boxes().size()); });
    atProgramEnd(raiseOverflow); // must not keep the others from closing
    atProgramEnd([&] { closed += u"the last"_s; });
    QCOMPARE(endStatus([] { endWithReport({RunTimeError::Overflow, u"Overflow"_s}); }), 1);
    QCOMPARE(closed, QStringList({u"the last"_s, u"the first, after 1 box"_s}));
    QCOMPARE(script.texts(), QStringList(u"Run-time error '6': Overflow"_s));
    QCOMPARE(script.boxes().first().style.icon, BoxIcon::Critical);
    QCOMPARE(script.boxes().first().title, u"Mirakla Desk"_s);
}

QTEST_MAIN(DesktopTest)
#include "test_desktop.moc"
