// SPDX-License-Identifier: MIT
// A season of tickets keyed in one run of the entry page: what is used up by one ticket has to be
// given back by the next. The long run is DESK_TICKETS=20000 test_endurance.
#include "desktop/application.h"
#include "entry/form1.h"
#include "ledger/ledger.h"
#include "model/step.h"
#include "support/hands.h"
#include "support/testledger.h"
#include "widgets/combo.h"
#include "widgets/pushbutton.h"
#include "widgets/workprogress.h"

#include <QElapsedTimer>
#include <QFile>
#include <QLineEdit>
#include <QLoggingCategory>
#include <QPixmapCache>
#include <QRandomGenerator>
#include <QTest>

#include <algorithm>
#include <array>
#include <ctime>
#include <optional>
#include <vector>

#ifdef __SANITIZE_ADDRESS__
// The compiler's package leaves out the header that declares it.
extern "C" size_t __sanitizer_get_current_allocated_bytes();
#elif defined(Q_OS_LINUX)
#include <malloc.h>
#endif
#ifdef Q_OS_LINUX
#include <unistd.h>
#endif

using namespace Qt::StringLiterals;

namespace {

constexpr int Season = 20'000; ///< tickets for which memory has to last
constexpr int Customers = 100;
constexpr int Percent = 10;

/// Bytes that the program has asked for and not given back; -1 where nobody counts them.
qint64 memoryInUse()
{
#ifdef __SANITIZE_ADDRESS__
    return qint64(__sanitizer_get_current_allocated_bytes());
#elif defined(Q_OS_LINUX)
    const auto heap = mallinfo2();
    return qint64(heap.uordblks) + qint64(heap.hblkhd);
#else
    return -1;
#endif
}

/// Takes the time of each save, from its first row to the end, for each row of it.
class Stopwatch : public WorkProgress
{
public:
    using WorkProgress::WorkProgress;

    void start(int maximum) override
    {
        if (m_rows == 0) {
            m_begin = std::clock();
            m_wall.start();
        }
        WorkProgress::start(maximum);
    }
    void step() override
    {
        ++m_rows;
        WorkProgress::step();
    }
    void finish() override
    {
        WorkProgress::finish();
        work.push_back(1e6 * double(std::clock() - m_begin) / CLOCKS_PER_SEC / m_rows);
        wall.push_back(double(m_wall.nsecsElapsed()) / 1e3 / m_rows);
        m_rows = 0;
    }

    std::vector<double> work; ///< of the processor, which no other program disturbs; microseconds
    std::vector<double> wall; ///< with the waiting for the disk

private:
    std::clock_t m_begin = 0;
    QElapsedTimer m_wall;
    int m_rows = 0;
};

/// What the system has given to the program, in bytes; -1 where nobody tells.
qint64 sizeOfProcess()
{
#ifdef Q_OS_LINUX
    QFile file(u"/proc/self/statm"_s);
    const QByteArray pages =
        file.open(QIODevice::ReadOnly) ? file.readAll().split(' ').value(1) : QByteArray();
    return pages.toLongLong() * sysconf(_SC_PAGESIZE);
#else
    return -1;
#endif
}

double median(std::vector<double> times)
{
    std::nth_element(times.begin(), times.begin() + qsizetype(times.size() / 2), times.end());
    return times[times.size() / 2];
}

/// The entry page, and the hands that key tickets on it.
class Desk
{
public:
    Desk()
    {
        m_page.resize(1200, 700);
        m_window.show();
        if (!QTest::qWaitForWindowActive(&m_window))
            qFatal("the page does not come up");
    }

    void keyTicket()
    {
        Hands::click(m_page.findChild<QLineEdit *>(u"Tnumber"_s));
        Step step{.customer = u"c%1"_s.arg(m_dice.bounded(Customers), 2, 10, QChar(u'0'))};
        for (int lines = m_dice.bounded(1, 6); lines > 0; --lines)
            keyLine(step.ticket);
        Hands::press(Qt::Key_Tab);
        Hands::type(step.customer);
        Hands::press(Qt::Key_Return);
        Hands::click(m_page.findChild<PushButton *>(u"lvButtons_H0"_s));
        const QStringList boxes = m_hands.takeBoxes();
        if (boxes.size() != 1) // the question alone
            qFatal("a ticket was not filed: %s", qPrintable(boxes.join(u'\n')));
        ++filed;
        step.discount = model::discountOn(step.ticket.total(), Percent);
        if (book)
            step.perform(*book);
    }

private:
    QWidget
        m_window; ///< the bar is part of it, as in the program: one of its own would take the keys

public:
    Stopwatch stopwatch{&m_window};
    int filed = 0;
    std::optional<model::Book> book; ///< follows the Ledger if it is given

private:
    void keyLine(model::Ticket &ticket)
    {
        struct Kind
        {
            Qt::Key key;
            const char16_t *caption;
            int digits;
        };
        constexpr std::array Kinds{Kind{Qt::Key_F1, u"บน", 3},      Kind{Qt::Key_F1, u"บน", 2},
                                   Kind{Qt::Key_F5, u"ล่าง", 3},     Kind{Qt::Key_F5, u"ล่าง", 2},
                                   Kind{Qt::Key_F2, u"วิ่งบน", 1},    Kind{Qt::Key_F6, u"วิ่งล่าง", 1},
                                   Kind{Qt::Key_F9, u"ตรง+โต๊ด", 3}, Kind{Qt::Key_F10, u"บน+ล่าง", 2},
                                   Kind{Qt::Key_End, u"โต๊ด", 3}};
        const Kind &kind = Kinds[m_dice.bounded(quint32(Kinds.size()))];
        Hands::press(kind.key);
        QString line;
        while (line.size() < kind.digits) // no digit twice in a row, as some kinds want it
            line += QString::number((line.right(1).toInt() + m_dice.bounded(1, 10)) % 10);
        line += u'-' + QString::number(m_dice.bounded(1, 1'000));
        Hands::type(line);
        Hands::press(Qt::Key_Return);
        ticket.key(QString::fromUtf16(kind.caption), line);
    }

    QRandomGenerator m_dice{1};
    Hands m_hands;
    Form1 m_page{stopwatch, &m_window};
};

} // namespace

class EnduranceTest : public QObject
{
    Q_OBJECT

private slots:
    void memoryAndSaveTimeStayFlat();
};

void EnduranceTest::memoryAndSaveTimeStayFlat()
{
    bool given = false;
    const int asked = qEnvironmentVariableIntValue("DESK_TICKETS", &given);
    const int tickets = given ? asked : 240;
    const int half = tickets / 2;
    const int settling = std::clamp(half / 4, 40, 500); // what is kept on purpose fills up
    const TestLedger ledger;
    // SQLite's cache of pages grows up to its bound, and so does Qt's of pixmaps, from Qt 6.8 on
    // over some 600 tickets. With low bounds both are soon full and hide no leak.
    ledger.run(u"PRAGMA cache_size = -1000"_s);
    QPixmapCache::setCacheLimit(500);
    model::Book book;
    for (int customer = 0; customer < Customers; ++customer) {
        const QString name = u"c%1"_s.arg(customer, 2, 10, QChar(u'0'));
        const int key = book.customer(name);
        book.customers[key].percent = QString::number(Percent);
        ledger.addMember(key, name, QString::number(Percent));
    }
    Desk desk;
    desk.book = book;
    for (int ticket = 0; ticket < half; ++ticket)
        desk.keyTicket();
    QCOMPARE(ledgerRows(*LedgerConnection), desk.book->rows());
    desk.book.reset(); // or its memory would count
    const auto before = std::exchange(desk.stopwatch.work, {});
    const auto wallBefore = std::exchange(desk.stopwatch.wall, {});

    // A long book must not slow the save down; the sample would not get there by itself.
    ledger.run(u"INSERT INTO tblNumber WITH RECURSIVE line(at) AS"
               " (SELECT 1 UNION ALL SELECT at + 1 FROM line WHERE at < 50000)"
               " SELECT (SELECT max(NPK) FROM tblNumber) + at, 1 + at % 100, 3, -1, 1 + at % 2,"
               " substr('00' || abs(random()) % 1000, -3), 1 + at % 999, 'sv' FROM line"_s);
    for (int ticket = 0; ticket < settling; ++ticket)
        desk.keyTicket();
    desk.stopwatch.work.clear();
    desk.stopwatch.wall.clear();
    std::vector<double> memory;
    memory.reserve(size_t(half));
    const qint64 size = sizeOfProcess();
    for (int ticket = 0; ticket < half; ++ticket) {
        desk.keyTicket();
        memory.push_back(double(memoryInUse()));
    }
    // Middles of the first and the last third, since single values go up and down with the journal.
    const qsizetype third = half / 3;
    const double first = median({memory.begin(), memory.begin() + third});
    const double last = median({memory.end() - third, memory.end()});
    const double grown = (last - first) / double(half - third) * Season;
    qInfo("%d tickets, %s lines; %.1f MB, then %.1f; %.2f MB of them in use, %+.2f in %d tickets",
          desk.filed, qPrintable(ledger.run(u"SELECT count(*) FROM tblNumber"_s)[0]),
          double(size) / 1e6, double(sizeOfProcess()) / 1e6, first / 1e6, grown / 1e6, Season);
    qInfo("a row of a save: %.0f us of work, in the long book %.0f; %.0f us in all, then %.0f",
          median(before), median(desk.stopwatch.work), median(wallBefore),
          median(desk.stopwatch.wall));
    QVERIFY(size > 0);
    QVERIFY(grown <= 0.05 * double(size));
    QVERIFY(median(desk.stopwatch.work) <= 1.5 * median(before));
}

int main(int argc, char **argv)
{
    qputenv("SDL_AUDIODRIVER", "none at all");
    qputenv("QTEST_FUNCTION_TIMEOUT", "2000000000");
    // The platform that shows nothing complains at each box, until the log is closed to all else.
    QLoggingCategory::setFilterRules(u"default.warning=false"_s);
    const Application application(argc, argv);
    EnduranceTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "test_endurance.moc"
