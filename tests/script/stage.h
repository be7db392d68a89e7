// SPDX-License-Identifier: MIT
// What a case plays on: a program folder with an encrypted Ledger, and the program in it.
#pragma once

#include <QPointer>
#include <QStringList>
#include <QVariant>

#include <memory>

class MDIForm1;
class QMessageBox;
class QWidget;

class Stage
{
public:
    /// @p place is a folder for the Ledger that is copied and for the program's own folder.
    explicit Stage(const QString &place);
    ~Stage();
    Q_DISABLE_COPY_MOVE(Stage)

    /// Ends the program and makes its folder as after the first installation. The clock stands, at
    /// a fixed time.
    void reset();

    /// Path of a file in the program's folder.
    QString file(const QString &name) const { return m_folder + u'/' + name; }

    /// Runs a statement, in the program's own connection while it runs. Gives the rows, their
    /// fields joined by "|".
    QStringList run(const QString &sql, const QVariantList &values = {});

    /// Starts the program; ends the process as main() does if it does not want to run.
    void start();

    /// The window in which controls are looked for: the dialog on top, the one chosen by "in", or the
    /// main window. A box is none. Throws NotYet if there is no window.
    QWidget *window() const;
    QPointer<QWidget> chosen;

    /// The same once it is active.
    QWidget *activeWindow() const;

    /// Folder of the texts that dumps are compared with, with a slash.
    QString stored;

    bool started = false; ///< or starting

    /// The box on top, or nullptr.
    static QMessageBox *box();

private:
    QString m_place;
    QString m_folder;
    std::unique_ptr<MDIForm1> m_main;
};
