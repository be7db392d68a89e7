// SPDX-License-Identifier: MIT
#include "settings/rates.h"

#include "ledger/ledger.h"
#include "runtime/values.h"

using namespace Qt::StringLiterals;

std::optional<RateTexts> readRates()
{
    std::optional<RateTexts> rates;
    RecordsetA.open(u" SELECT tblMoney.* FROM tblMoney WHERE [PK] = 1 ORDER BY PK"_s);
    if (RecordsetA.recordCount() > 0) {
        rates.emplace();
        for (size_t at = 0; at < RateColumns.size(); ++at)
            (*rates)[at] = RecordsetA.field(QLatin1String(RateColumns[at].name)).toString();
    }
    RecordsetA.close();
    return rates;
}

void writeRates(const RateTexts &rates)
{
    RecordsetA.openRow(u"tblMoney"_s, u"PK"_s, 1);
    for (size_t at = 0; at < RateColumns.size(); ++at)
        RecordsetA.set(u'[' + QLatin1String(RateColumns[at].name) + u']', CInt(rates[at]));
    RecordsetA.update();
    RecordsetA.close();
}
