// SPDX-License-Identifier: MIT
// The dialog "ตรวจสอบเลข": the details of one row of the risk scan.
#pragma once

#include <QDialog>

#include <memory>

class SpreadModel;

namespace Ui {
class Number;
}

class Number : public QDialog
{
    Q_OBJECT

public:
    /// Shows the row ScanRow of @p scan.
    Number(const SpreadModel &scan, QWidget *parent);
    ~Number() override;

private:
    void Form_Load(const SpreadModel &scan);

    std::unique_ptr<Ui::Number> m_ui;
};
