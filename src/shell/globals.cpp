// SPDX-License-Identifier: MIT
#include "shell/globals.h"

#include "ledger/ledger.h"
#include "runtime/values.h"

#include <array>

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

struct RateColumn
{
    const char *column;
    qint16 *rate;
};

/// In the order of BetClasses.
constexpr std::array RateColumns{
    RateColumn{"3up", &Rate3up},     RateColumn{"3tod", &Rate3tod},
    RateColumn{"2up", &Rate2up},     RateColumn{"2tod", &Rate2tod},
    RateColumn{"runup", &Raterunup}, RateColumn{"3down", &Rate3down},
    RateColumn{"2down", &Rate2down}, RateColumn{"rundown", &Raterundown},
};

} // namespace

qint16 classRate(int at)
{
    return *RateColumns[size_t(at)].rate;
}

void LoadMoney()
{
    RecordsetA.open(u" SELECT tblMoney.* FROM tblMoney WHERE [PK] = 1 ORDER BY PK"_s);
    if (RecordsetA.recordCount() > 0) {
        for (const RateColumn &entry : RateColumns)
            *entry.rate = CInt(numberOf(RecordsetA.field(QString::fromLatin1(entry.column))));
    }
    RecordsetA.close();
}
