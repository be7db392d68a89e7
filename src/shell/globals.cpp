// SPDX-License-Identifier: MIT
#include "shell/globals.h"

#include "ledger/ledger.h"
#include "ledger/schema.h"
#include "runtime/values.h"

using namespace Qt::StringLiterals;

qint16 Rate3up = 0;
qint16 Rate3tod = 0;
qint16 Rate2up = 0;
qint16 Rate2tod = 0;
qint16 Raterunup = 0;
qint16 Rate3down = 0;
qint16 Rate2down = 0;
qint16 Raterundown = 0;
quint8 CutOrigin = FromOtherPage;

namespace {

/// In the order of RateColumns.
constexpr std::array Rates{&Rate3up,   &Rate3tod,  &Rate2up,   &Rate2tod,
                           &Raterunup, &Rate3down, &Rate2down, &Raterundown};

} // namespace

qint16 classRate(int at)
{
    return *Rates[size_t(at)];
}

void LoadMoney()
{
    RecordsetA.open(u" SELECT tblMoney.* FROM tblMoney WHERE [PK] = 1 ORDER BY PK"_s);
    if (RecordsetA.recordCount() > 0) {
        for (size_t at = 0; at < Rates.size(); ++at)
            *Rates[at] = CInt(numberOf(RecordsetA.field(QLatin1String(RateColumns[at].name))));
    }
    RecordsetA.close();
}
