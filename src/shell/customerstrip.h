// SPDX-License-Identifier: MIT
// The customer strip in the banner: the customer whose bets the board shows, and the discount.
#pragma once

#include <QLineEdit>

/// Shown while the board is filtered to one customer. Hiding clears the fields, so that a later
/// printout does not have the name of an earlier customer.
class CustomerStrip
{
public:
    /// @p Frame6 is the panel with the fields. The widgets must outlive this object.
    CustomerStrip(QWidget &Frame6, QLineEdit &name, QLineEdit &percent, QLineEdit &money)
        : Tname(name), text2(percent), text3(money), m_panel(Frame6)
    {}

    bool isShown() const { return !m_panel.isHidden(); }
    void show() const { m_panel.show(); }
    void hide() const
    {
        m_panel.hide();
        for (QLineEdit *field : {&Tname, &text2, &text3})
            field->clear();
    }

    QLineEdit &Tname; ///< name of the customer
    QLineEdit &text2; ///< the discount in percent
    QLineEdit &text3; ///< the discount in baht, as "#,##"

private:
    QWidget &m_panel;
};
