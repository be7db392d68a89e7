// SPDX-License-Identifier: MIT
// Answers the program's boxes instead of showing windows, and keeps their texts.
#pragma once

#include "desktop/msgbox.h"

#include <QStringList>

/// Answers boxes as long as it lives: with Cancel, so that nothing unexpected is ever accepted, unless
/// another answer is given.
class BoxScript
{
public:
    explicit BoxScript(BoxAnswer answer = BoxAnswer::Cancel)
        : m_before(setBoxShower([this, answer](const Box &box) {
              m_texts += box.text;
              return answer;
          }))
    {}
    ~BoxScript() { setBoxShower(m_before); }
    Q_DISABLE_COPY_MOVE(BoxScript)

    const QStringList &texts() const { return m_texts; }

private:
    QStringList m_texts;
    BoxShower m_before;
};
