// SPDX-License-Identifier: MIT
// What is done to a book in a day, by the program on its Ledger and by the model, and what the
// Ledger holds then.
#pragma once

#include "model/trade.h"

class Connection;
class QRandomGenerator;

struct Step
{
    enum Kind : char { File = 'f', Cut = 'c', Check = 'k', Close = 'x' };

    static constexpr qint64 HighestAmount = 9'999;

    /// A random step with at most @p most bets and, if @p discounted, always a discount.
    static Step random(Kind kind, QRandomGenerator &random, int most = 20, bool discounted = false);

    /// Does it as the program does; @p done is called after each row of a ticket and after every
    /// other step, when it is durable.
    void perform(const std::function<void()> &done = [] {}) const;

    /// Does it to a model. @p passed is called in every state that the Ledger goes through.
    void perform(
        model::Book &book, const std::function<void(bool isDone)> &passed = [](bool) {}) const;

    /// How much of a line is cut: once in three times all of it.
    qint64 partOf(qint64 amount) const { return part % 3 == 0 ? amount : part % quint32(amount); }

    Kind kind = File;
    QString customer{}; ///< may be new
    model::Ticket ticket{};
    qint64 discount = 0;
    QString result{};
    quint32 line = 0; ///< which one is cut, modulo their count; none in an empty book
    quint32 part = 0;
};

/// What Book::rows() gives, read from a Ledger.
QStringList ledgerRows(Connection &ledger);
