// SPDX-License-Identifier: MIT
#include "support/formtest.h"

#include "ledger/ledger.h"

void FormTest::init()
{
    m_ledger.emplace();
    m_hands.emplace();
    prepare();
}

void FormTest::cleanup()
{
    QCOMPARE(m_hands->takeBoxes(), QStringList());
    m_window.reset();
    m_form.reset();
    m_hands.reset();
    m_ledger.reset();
}

void FormTest::show(std::unique_ptr<QWidget> form)
{
    m_form = std::move(form);
    m_form->show();
    QVERIFY(QTest::qWaitForWindowActive(m_form.get()));
}

void FormTest::startProgramAt(int page)
{
    CloseLedger();
    m_window = startProgram();
    QVERIFY(m_window && QTest::qWaitForWindowActive(m_window.get()));
    m_window->openPage(page);
}

void FormTest::clickOk(const char *button)
{
    m_hands->answerNextWithOk();
    click(button);
}

QStringList FormTest::column(int column, const char *grid) const
{
    QStringList texts;
    const auto *spread = control<Spread>(grid);
    for (int row = 1; row <= spread->rows(); ++row)
        texts += spread->text(row, column);
    return texts;
}
