// SPDX-License-Identifier: MIT
// The page "ข้อมูลย้อนหลัง": results, payouts and profits of all closed draws.
#pragma once

#include "widgets/progressbar.h"
#include "widgets/spreadmodel.h"

#include <QWidget>

#include <memory>

namespace Ui {
class Form5;
}

class Form5 : public QWidget
{
    Q_OBJECT

public:
    /// @p progress shows the progress of loading; it must outlive the page.
    Form5(ProgressBar &progress, QWidget *parent);
    ~Form5() override;

private:
    void Form_Load();
    void reload();
    void lvButtons_H1_Click();

    std::unique_ptr<Ui::Form5> m_ui;
    ProgressBar &m_progress;
    SpreadModel m_draws;
};
