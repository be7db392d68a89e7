// SPDX-License-Identifier: MIT
// What a test of a form starts from and leaves behind: an empty book, hands, the form in front.
#pragma once

#include "desktop/application.h"
#include "program.h"
#include "support/hands.h"
#include "support/noprogress.h"
#include "support/testledger.h"
#include "widgets/pushbutton.h"
#include "widgets/spread.h"

#include <QLineEdit>
#include <QTest>

#include <optional>

/// Each case begins with a Ledger of its own and ends with all boxes looked at, nothing open.
class FormTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

protected:
    /// Fills the book and opens the form.
    virtual void prepare() = 0;

    /// Shows a form by itself, in place of the one before.
    void show(std::unique_ptr<QWidget> form);

    /// Starts the real program on the book as it was filled, and opens a page: the form is its.
    void startProgramAt(int page);

    QWidget *form() const { return m_window ? m_window->page() : m_form.get(); }

    template<typename Control>
    Control *control(const char *name) const
    {
        return form()->findChild<Control *>(QLatin1String(name));
    }
    QString text(const char *field) const { return control<QLineEdit>(field)->text(); }
    void click(const char *button) const { Hands::click(control<PushButton>(button)); }
    void clickOk(const char *button);

    /// The texts of a column, from the first row on.
    QStringList column(int column, const char *grid = "fpSpread1") const;

    std::optional<TestLedger> m_ledger;
    std::optional<Hands> m_hands;
    NoProgress m_progress;
    std::unique_ptr<QWidget> m_form;
    std::unique_ptr<MDIForm1> m_window;
};

/// The main() of such a test. A program that runs on this machine is no second copy of it.
template<typename Test>
int runFormTest(int argc, char **argv)
{
    static const QTemporaryDir ownPlace;
    qputenv("TMPDIR", ownPlace.path().toUtf8());
    const Application application(argc, argv);
    Test test;
    return QTest::qExec(&test, argc, argv);
}
