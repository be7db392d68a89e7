// SPDX-License-Identifier: MIT
// Measures the board: its reload and its filter against their bare statements, and a cut together
// with the reload after it.
#include "book.h"
#include "figure.h"

#include "cutting/form3.h"
#include "desktop/msgbox.h"
#include "widgets/combo.h"
#include "widgets/spread.h"

#include <QElapsedTimer>
#include <QLineEdit>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

const QString Buyer = u"ลูกค้า 7"_s;

/// Returns a statement that reads the rows of one board in their order.
QByteArray boardStatement(bool filtered)
{
    // The unary plus keeps SQLite from using the index on classes instead of the one on customers.
    const QByteArray plus = filtered ? "+" : "";
    const QByteArray customer =
        filtered ? " AND NameFK IN (SELECT MPK FROM tblMember WHERE [Mname] LIKE ?)" : "";
    return "SELECT num23, updown, numType, numValue, Sum(numBuy) AS nMoney FROM tblNumber WHERE "
           + plus + "num23 = ? AND " + plus + "updown = ? AND " + plus + "numType = ?" + customer
           + " GROUP BY num23, updown, numType, numValue ORDER BY Sum(numBuy) DESC, numValue";
}

/// The whole program on its board page, with a book of many lines and 50 hot numbers.
class BoardDesk
{
public:
    explicit BoardDesk(int lines)
        : m_folder(drawLines(lines)), m_bare(m_folder.copy()), m_window(openProgram(2))
    {}
    ~BoardDesk()
    {
        m_window.reset();
        CloseLedger();
    }
    Q_DISABLE_COPY_MOVE(BoardDesk)

    /// Returns the seconds that reloading all boards takes after a change of the book.
    double reload()
    {
        m_folder.run(u"UPDATE tblNumber SET numBuy = numBuy + 1 WHERE NPK = 1"_s);
        QElapsedTimer clock;
        clock.start();
        form().FReLoad();
        const double taken = seconds(clock);
        QApplication::processEvents();
        return taken;
    }

    /// Returns the seconds from Enter to the board filtered to one customer.
    double filter()
    {
        auto *names = form().findChild<Combo *>();
        names->setEditText(Buyer);
        names->setFocus();
        QElapsedTimer clock;
        clock.start();
        QTest::keyClick(names, Qt::Key_Return);
        const double taken = seconds(clock);
        if (form().board().isEmpty())
            qFatal("the customer has no bets");
        QTest::keyClick(&form(), Qt::Key_F5);
        QApplication::processEvents();
        return taken;
    }

    /// Cuts one baht from a line behind row @p row of a board. Returns the seconds from Enter in
    /// the dialog to the reloaded board. Sets @p allDone to the seconds from that Enter until the
    /// dialog is gone and the page is painted.
    double cut(int board, int row, double &allDone)
    {
        double loaded = 0;
        auto *grid = form().findChild<Spread *>(u"fpSpread%1"_s.arg(board + 1));
        QElapsedTimer clock;
        QTimer::singleShot(0, &form(), [&] {
            QWidget *dialog = QApplication::activeModalWidget();
            QTest::keyClick(dialog->findChild<Spread *>(), Qt::Key_Space);
            auto *amount = dialog->findChild<QLineEdit *>(u"text1"_s);
            amount->setText(u"1"_s);
            clock.start();
            QTest::keyClick(amount, Qt::Key_Return);
            dialog->close();
            loaded = seconds(clock);
        });
        grid->setActiveRow(row);
        QTest::keyClick(grid, Qt::Key_Return);
        QApplication::processEvents();
        allDone = seconds(clock);
        return loaded;
    }

    /// Returns the seconds that the statements of a reload take on a copy of the file.
    double bareReload() { return m_bare.read(boards({})); }

    /// Returns the seconds that the statements of a filter take on the copy. Then reads the whole
    /// book, as the page does after its filter, so that both sides start with the same cache.
    double bareFilter()
    {
        BareStatements statements = boards({Buyer});
        statements.push_back(
            {"SELECT tblMember.* FROM tblMember WHERE [Mname] LIKE ? ORDER BY MPK LIMIT 1",
             {u'%' + Buyer + u'%'}});
        const double taken = m_bare.read(statements);
        m_bare.read(boards({}));
        return taken;
    }

private:
    static double seconds(const QElapsedTimer &clock) { return double(clock.nsecsElapsed()) / 1e9; }
    static BareStatements boards(const QVariantList &customer)
    {
        BareStatements statements;
        for (const BetClass &each : BetClasses)
            statements.push_back(
                {boardStatement(!customer.isEmpty()),
                 QVariantList{each.num23, each.updown ? -1 : 0, each.numType} + customer});
        statements.push_back({"SELECT tblNumberFix.* FROM tblNumberFix ORDER BY PK", {}});
        statements.push_back({"SELECT Mname FROM tblMember WHERE EXISTS"
                              " (SELECT 1 FROM tblNumber WHERE NameFK = MPK) ORDER BY MPK",
                              {}});
        return statements;
    }
    Form3 &form() { return *m_window->findChild<Form3 *>(); }

    WorkFolder m_folder;
    BareReader m_bare;
    std::unique_ptr<MDIForm1> m_window;
};

/// Returns the seconds of @p ours as a multiple of those of @p bare, measured alternately.
template<typename Ours, typename Bare>
Measured measureInTurn(benchmark::State &state, Ours &&ours, Bare &&bare)
{
    ours(); // fills the page cache
    bare();
    Samples our;
    Samples their;
    for ([[maybe_unused]] auto round : state) {
        our.push_back(ours() * 1e6);
        state.SetIterationTime(our.back() / 1e6);
        their.push_back(bare() * 1e6);
    }
    return ratio(our, their, "us");
}

} // namespace

Measured measureReload(benchmark::State &state, int lines)
{
    BoardDesk desk(lines);
    return measureInTurn(
        state, [&] { return desk.reload(); }, [&] { return desk.bareReload(); });
}

Measured measureFilter(benchmark::State &state, int lines)
{
    BoardDesk desk(lines);
    return measureInTurn(
        state, [&] { return desk.filter(); }, [&] { return desk.bareFilter(); });
}

Measured measureCut(benchmark::State &state, int board, int lines)
{
    BoardDesk desk(lines);
    const BoxShower before = setBoxShower([](const Box &) { return BoxAnswer::Ok; });
    int row = 0;
    Samples loaded;
    Samples painted;
    desk.cut(board, 10, painted.emplace_back()); // fills the page cache
    for ([[maybe_unused]] auto round : state) {
        loaded.push_back(desk.cut(board, ++row % 10 + 1, painted.emplace_back()) * 1000);
        state.SetIterationTime(loaded.back() / 1000);
    }
    setBoxShower(before);
    return {quantile(loaded, 0.5),
            QString::asprintf("slowest %.0f, with dialog gone and page painted %.0f",
                              quantile(loaded, 1), quantile(painted, 0.5) * 1000)};
}
