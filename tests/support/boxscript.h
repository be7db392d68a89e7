// SPDX-License-Identifier: MIT
// Answers the program's boxes from a list instead of showing windows, and keeps them.
#pragma once

#include "desktop/msgbox.h"

#include <QList>
#include <QStringList>

/// Answers boxes as long as it lives. A question gets the next prepared answer, or Cancel if none is
/// left, so that nothing unexpected is ever accepted.
class BoxScript
{
public:
    explicit BoxScript(QList<BoxAnswer> answers = {})
        : m_before(setBoxShower([this, answers](const Box &box) mutable {
              m_boxes += box;
              if (box.style.buttons == BoxButtons::Ok)
                  return BoxAnswer::Ok;
              return answers.isEmpty() ? BoxAnswer::Cancel : answers.takeFirst();
          }))
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
    QList<Box> m_boxes;
    BoxShower m_before;
};
