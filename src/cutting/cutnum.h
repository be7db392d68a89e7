// SPDX-License-Identifier: MIT
// The dialog "คัดหวย ( ตีออก )": lists the bet lines of one number and lays off money from them.
#pragma once

#include "cutting/cutout.h"
#include "desktop/focustracker.h"

#include <QDialog>

#include <functional>
#include <memory>

namespace Ui {
class CutNum;
}

class CutNum : public QDialog
{
    Q_OBJECT

public:
    /// Lists the lines of the selected class and number. @p unload is called once, before the
    /// dialog closes.
    CutNum(std::function<void()> unload, QWidget *parent);
    ~CutNum() override;

    void done(int result) override;

private:
    void LoadNumrunup();
    void fpSpread1_Click();
    void lvButtons_H1_Click();
    void lvButtons_H3_Click();
    bool checkFields();
    void refuseAmount(const QString &text);

    std::unique_ptr<Ui::CutNum> m_ui;
    std::function<void()> m_unload;
    FocusTracker m_focus;
    CutOut m_cutOut;
};
