// SPDX-License-Identifier: MIT
// The part of the banner that tells whose bets the board shows, and his discount on them.
#pragma once

#include <QLineEdit>

/// Shown while the board is filtered to one customer. Hiding empties it, so that nothing printed
/// later carries an old customer's name.
class CustomerStrip
{
public:
    /// @p Frame6 is the panel; it and its fields must outlive this.
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
    QLineEdit &text2; ///< his discount in percent
    QLineEdit &text3; ///< the discount in baht, as "#,##"

private:
    QWidget &m_panel;
};
