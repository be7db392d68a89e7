// SPDX-License-Identifier: MIT
// The dialog that shows and exports a report. Its three instances differ only in object name and
// report.
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
    /// Runs @p report and shows its pages. @p name is the object name of the dialog.
    FPrint(const QString &name, std::unique_ptr<Report> report, QWidget *parent);
    ~FPrint() override;

private:
    void Form_Load();
    void Command1_Click();
    void Command2_Click();

    std::unique_ptr<Ui::FPrint> m_ui;
    std::unique_ptr<Report> m_report;
};
