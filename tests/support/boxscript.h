// SPDX-License-Identifier: MIT
// Answers the program's boxes from a list, in place of real windows, and keeps what they said.
#pragma once

#include "desktop/msgbox.h"

#include <QList>
#include <QStringList>

#include <utility>

/// Shows boxes for as long as it lives. A question takes the next prepared answer; one that no
/// answer was prepared for is answered Cancel, so that nothing unforeseen is ever agreed to.
class BoxScript
{
public:
    explicit BoxScript(QList<BoxAnswer> answers = {})
        : m_answers(std::move(answers)),
          m_before(setBoxShower([this](const Box &box) { return answer(box); }))
    {}
    ~BoxScript() { setBoxShower(m_before); }
    Q_DISABLE_COPY_MOVE(BoxScript)

    const QList<Box> &boxes() const { return m_boxes; }

    QStringList texts() const
    {
        QStringList texts;
        for (const Box &box : m_boxes)
            texts += box.text;
        return texts;
    }

private:
    BoxAnswer answer(const Box &box)
    {
        m_boxes += box;
        if (box.style.buttons == BoxButtons::Ok)
            return BoxAnswer::Ok;
        return m_answers.isEmpty() ? BoxAnswer::Cancel : m_answers.takeFirst();
    }

    QList<BoxAnswer> m_answers;
    QList<Box> m_boxes;
    BoxShower m_before;
};
