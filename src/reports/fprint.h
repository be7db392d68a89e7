// SPDX-License-Identifier: MIT
// The window that shows a report and exports it. The three of the program differ only in their
// name and their report.
#pragma once

#include "paper/report.h"

#include <QDialog>

#include <memory>

namespace Ui {
class FPrint;
}

class FPrint : public QDialog
{
    Q_OBJECT

public:
    /// Runs @p report and shows it. @p name is the window's object name.
    FPrint(const QString &name, std::unique_ptr<Report> report, QWidget *parent);
    ~FPrint() override;

private:
    void Form_Load();
    void Command1_Click();
    void Command2_Click();

    std::unique_ptr<Ui::FPrint> m_ui;
    std::unique_ptr<Report> m_report;
};
