// SPDX-License-Identifier: MIT
// The board of a small book in the real program, for tests of the board and of what it opens.
#pragma once

#include "cutting/form3.h"
#include "cutting/selection.h"
#include "support/formtest.h"

class BoardFormTest : public FormTest
{
protected:
    void prepare() override
    {
        using namespace Qt::StringLiterals;
        m_ledger->addMember(1, u"สมชาย"_s, u"10"_s);
        m_ledger->addMember(2, u"สมหญิง"_s, u"5"_s);
        m_ledger->addMember(3, u"นารี"_s, u"5"_s);
        m_ledger->run(
            u"INSERT INTO tblNumber (NameFK, num23, updown, numType, numValue, numBuy, nuser)"
            " VALUES (1, 3, -1, 1, '123', 1000, 'sv'), (2, 3, -1, 1, '123', 500, 'sv'),"
            " (2, 3, -1, 1, '456', 200, 'sv'), (1, 3, 0, 1, '123', 300, 'sv'),"
            " (2, 1, 0, 3, '7', 40, 'sv')"_s);
        MemberFilterOn = false;
        startProgramAt(2);
    }
    Spread *grid(int number) const
    {
        return control<Spread>(qPrintable(QStringLiteral("fpSpread%1").arg(number)));
    }
    QString total(int number) const { return grid(number)->text(-999, 2); }
    /// Opens the cut-out of a board's first row with Enter; @p work is done in it.
    void cut(int board, const std::function<void(QWidget *)> &work)
    {
        m_hands->inNextDialog([&](QWidget *dialog) {
            if (!Hands::focusComesTo(dialog))
                qFatal("the cut-out did not come to the front");
            work(dialog);
            dialog->close();
        });
        grid(board)->setFocus();
        grid(board)->setActiveRow(1);
        Hands::press(Qt::Key_Return);
    }
};
