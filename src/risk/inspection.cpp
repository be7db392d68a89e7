// SPDX-License-Identifier: MIT
#include "risk/inspection.h"

#include "entry/vocabulary.h"
#include "risk/scan.h"
#include "runtime/runtimeerror.h"
#include "runtime/values.h"
#include "shell/globals.h"

using namespace Qt::StringLiterals;

namespace {

struct ScanRate
{
    quint8 cutOrigin;
    int length;
    int numType;
    const qint16 *rate;
};

/// Payout per baht of the classes that a scan lists.
constexpr std::array ScanRates{
    ScanRate{FromTopScan, 3, Tod, &Rate3tod},       ScanRate{FromTopScan, 2, Straight, &Rate2up},
    ScanRate{FromTopScan, 2, Tod, &Rate2tod},       ScanRate{FromTopScan, 1, Run, &Raterunup},
    ScanRate{FromBottomScan, 1, Run, &Raterundown},
};

const qint16 *rateOf(const QString &number, const QString &type)
{
    for (const ScanRate &each : ScanRates) {
        if (each.cutOrigin == CutOrigin && each.length == number.size()
            && oneWordLabel(each.numType) == type)
            return each.rate;
    }
    return nullptr;
}

} // namespace

Inspection inspect(const SpreadModel &scan, int row)
{
    const auto cell = [&](int column) { return trimBlanks(scan.text(row, column)); };
    const QString type = cell(ScanColumn::Type);
    const QString number = cell(ScanColumn::Number);
    Inspection shown{u"ประเภท : "_s + type + u"  /  เลข : "_s + number,
                     cell(ScanColumn::Amount),
                     {},
                     cell(ScanColumn::Risk),
                     cell(ScanColumn::Related)};
    if (const qint16 *rate = rateOf(number, type))
        resumeNext([&] { shown.loss = formatBaht(CDbl(shown.bought) * *rate); });
    return shown;
}
