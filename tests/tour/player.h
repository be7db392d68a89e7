// SPDX-License-Identifier: MIT
// Plays a draw in the real program and holds every figure against the draw file.
#pragma once

#include "support/hands.h"
#include "tour/drawfile.h"
#include "tour/ending.h"

#include "shell/mdiform1.h"

#include <QSet>
#include <QTemporaryDir>

class PushButton;

class Player
{
public:
    enum class Kinds { FromTheList, ByKey };

    /// Pictures go to the folder @p pictures, named after @p name, the draw's.
    Player(MDIForm1 &window, const QString &pictures, const QString &name, Kinds kinds);

    /// Registers the customers and hot numbers of @p draw, keys its tickets and saves them.
    void play(const Draw &draw);

    /// Keys the result on the page of the draw check, holds every winner and both amounts against
    /// the draw file, and checks the lines cut out. Leaves the check of the own book as the last.
    void checkDraw(const Draw &draw);

    /// Cuts the heaviest number on the board and shows the cut numbers. The figures of the draw file
    /// are those of the whole book, so this comes behind the check.
    void cutNumbers();

    /// Opens the history, which must list @p draw alone, as closed today.
    void checkHistory(const Draw &draw);

    /// Holds what a closing came to against what it has to.
    void compareClosing(const Ending &ending);

    /// What came out otherwise than the draw file says.
    const QStringList &differences() const { return m_differences; }

    int linesKeyed() const { return m_linesKeyed; }

private:
    PushButton *navigation(int button) const;
    void addCustomers(const QList<DrawMember> &members);
    void addHotNumbers(const QStringList &numbers);

    void playTicket(const DrawTicket &ticket);
    void playLine(const DrawLine &line);
    void chooseKind(const QString &caption);
    void chooseFromList(int index);
    static void chooseByKey(int index);
    void showKeys();
    void chooseCustomer(const QString &name);
    void clearField();
    void save();

    void visitBoard(const Draw &draw);
    void compareBoard(int at, const DrawBoard &board);
    void filterCustomer(const DrawTicket &ticket);
    void findNumber(const QString &number);
    void cutHeaviest();
    void cutInDialog(QWidget *dialog);
    void confirmCut(QWidget *dialog, const QString &amount, const QStringList &boxes);
    void showCutNumbers();
    static QString money(const QString &statement);
    void runCheck(const QString &scene);
    void checkCutBook(const Draw &draw);
    QString amounts() const;
    QStringList cells(int columns) const;

    void visitScan(const Draw &draw);
    void analyse(QWidget *scan, bool top, const Draw &draw);
    void inspectRow(QWidget *scan, int row, const QString &side);

    /// Opens a report by its button, which has to show @p viewer, and saves it as both files.
    void printReport(PushButton *button, const QString &viewer, const QString &scene);
    void drawFirstPage(QWidget *viewer, const QString &scene);
    void exportReport(QWidget *viewer, const QString &button, const QString &file,
                      const QByteArray &mark);

    QStringList shownRows() const;
    void checkBook(const QString &expected);
    void compare(const QString &what, const QString &expected, const QString &found);
    void takePicture(const QString &scene, QWidget *widget = nullptr);
    QString pictureName(const QString &scene) const;

    /// A control of the open page.
    template<typename Control>
    Control *control(const char *name) const
    {
        auto *found = m_window.page()->findChild<Control *>(QLatin1String(name));
        if (!found)
            qFatal("no control %s", name);
        return found;
    }

    MDIForm1 &m_window;
    QString m_pictures;
    QString m_name;
    Kinds m_kinds;
    Hands m_hands;
    QStringList m_differences;
    QSet<QString> m_scenes;
    QTemporaryDir m_exports; ///< for the files of a tour without pictures
    QString m_kind;
    int m_ticket = 0;
    int m_linesKeyed = 0;
};
