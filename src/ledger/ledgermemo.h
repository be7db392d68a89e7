// SPDX-License-Identifier: MIT
// What was read from the Ledger, kept for as long as nothing in it changes: for a list that many
// steps of one piece of work ask for.
#pragma once

#include "ledger/ledger.h"

#include <utility>

template<typename Value>
class LedgerMemo
{
public:
    /// What @p read gave, called again only if the Ledger has changed since.
    template<typename Read>
    const Value &get(Read &&read)
    {
        const std::pair stamp(static_cast<const Connection *>(LedgerConnection.get()),
                              LedgerConnection->changes());
        if (stamp != m_stamp) {
            m_value = std::forward<Read>(read)();
            m_stamp = stamp;
        }
        return m_value;
    }

private:
    Value m_value;
    std::pair<const Connection *, int> m_stamp{nullptr, 0};
};
