// SPDX-License-Identifier: MIT
// A day of random work on a book.
#pragma once

#include "model/step.h"

#include <QRandomGenerator>

/// The same steps for the same seed. What cannot be done to an empty book is not asked of one.
class Day
{
public:
    /// With @p kinds the day has these steps and then ends, otherwise it never ends. Small days
    /// have small tickets, each with a discount.
    explicit Day(quint32 seed, std::vector<Step::Kind> kinds = {}, bool small = false);

    /// Does the day, or @p steps of it, on the open Ledger.
    void perform(
        const std::function<void()> &done = [] {}, int steps = 1'000'000);

    /// Has the model of a book go on to what was found of the book: the state after the step or row
    /// of the day that was acknowledged last, or one on the way to the next. False if it is none.
    bool leadsTo(const QStringList &found, qsizetype acknowledged, model::Book &book);

private:
    bool isOver() const { return m_given && m_kinds.empty(); }
    Step next(qsizetype lines);
    Step::Kind nextKind(qsizetype lines);

    QRandomGenerator m_random;
    std::vector<Step::Kind> m_kinds;
    bool m_given;
    bool m_small;
};
