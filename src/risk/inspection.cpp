// SPDX-License-Identifier: MIT
#include "risk/inspection.h"

#include "entry/vocabulary.h"
#include "risk/scan.h"
#include "runtime/runtimeerror.h"
#include "runtime/values.h"
#include "shell/globals.h"

using namespace Qt::StringLiterals;

namespace {

/// Returns the payout rate of a row's class, or std::nullopt for a class that no scan lists.
std::optional<qint16> rateOf(const QString &number, const QString &type)
{
    const bool top = CutOrigin == FromTopScan;
    const int numType = numTypeOf(type);
    const int num23 = int(number.size());
    if ((!top && CutOrigin != FromBottomScan) || !isScanned(top, num23, numType))
        return std::nullopt;
    return classRate(classOf(num23, top, numType));
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
    if (const auto rate = rateOf(number, type))
        resumeNext([&] { shown.loss = formatBaht(CDbl(shown.bought) * *rate); });
    return shown;
}
