// SPDX-License-Identifier: MIT
#include "faults/day.h"

#include "ledger/ledger.h"

#include <optional>

using namespace Qt::StringLiterals;

Day::Day(quint32 seed, std::vector<Step::Kind> kinds, bool small)
    : m_random(seed), m_kinds(std::move(kinds)), m_given(!m_kinds.empty()), m_small(small)
{}

Step::Kind Day::nextKind(qsizetype lines)
{
    Step::Kind kind = Step::File;
    if (m_given) {
        kind = m_kinds.front();
        m_kinds.erase(m_kinds.begin());
        return kind == Step::Cut && lines == 0 ? Step::File : kind;
    }
    const int chance = m_random.bounded(100);
    if (lines > 0 && chance < 50)
        kind = chance < 2 ? Step::Close : chance < 12 ? Step::Check : Step::Cut;
    return kind;
}

Step Day::next(qsizetype lines)
{
    return Step::random(nextKind(lines), m_random, m_small ? 4 : 20, m_small);
}

void Day::perform(const std::function<void()> &done, int steps)
{
    for (; steps > 0 && !isOver(); --steps)
        next(LedgerConnection->run(u"SELECT count(*) FROM tblNumber"_s).rows[0][0].toInt())
            .perform(done);
}

bool Day::leadsTo(const QStringList &found, qsizetype acknowledged, model::Book &book)
{
    std::optional<model::Book> match;
    qsizetype heard = 0;
    const auto compare = [&] {
        if (!match && book.rows() == found)
            match = book;
    };
    if (acknowledged == 0)
        compare();
    while (heard <= acknowledged && !isOver()) {
        next(qsizetype(book.lines.size())).perform(book, [&](bool isDone) {
            heard += isDone ? 1 : 0;
            if (heard == acknowledged || (heard == acknowledged + 1 && isDone))
                compare();
        });
    }
    if (match)
        book = *match;
    return match.has_value();
}
