// SPDX-License-Identifier: MIT
// The page "ข้อมูลลูกค้า": the list of customers with their telephone numbers and discounts.
#pragma once

#include "customers/register.h"
#include "desktop/focustracker.h"

#include <QWidget>

#include <memory>

class QLineEdit;

namespace Ui {
class Form2;
}

class Form2 : public QWidget
{
    Q_OBJECT

public:
    /// @p progress shows the progress of filling the list; it must outlive the page.
    Form2(ProgressBar &progress, QWidget *parent);
    ~Form2() override;

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    /// A column of a customer that can be changed: its input field, the text of the box if that is
    /// empty, the question before the change, and the column's name.
    struct Change
    {
        QLineEdit *field;
        QString refusal;
        QString question;
        QString column;
    };

    void connectControls();
    void Loaddata(bool search);
    void fpSpread1_RowPicked(int row);
    void lvButtons_H0_Click();
    void lvButtons_H1_Click();
    void lvButtons_H3_Click();
    void lvButtons_H4_Click();
    void lvButtons_H5_Click();
    void cDel_Click();

    void change(const Change &what);
    bool confirm(const QString &question);
    void tidyName(const QString &text);
    void showName(const QString &name);
    void clearFields();
    qint32 activeKey() const;

    std::unique_ptr<Ui::Form2> m_ui;
    ProgressBar &m_progress;
    FocusTracker m_focus;
    SpreadModel m_list;
};
