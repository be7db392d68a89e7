// SPDX-License-Identifier: MIT
#include "ledger/collation.h"

#include <QCollator>
#include <QLocale>

int compareAnyCase(QStringView left, QStringView right)
{
    return left.compare(right, Qt::CaseInsensitive);
}

namespace {

/// Thai letters stand before Latin ones, as in a Thai list. Left to itself, each desktop has its
/// own way with the two, and one book would be listed in two orders.
int scriptOf(QStringView text)
{
    if (text.isEmpty() || !text[0].isLetter())
        return 0;
    return text[0].script() == QChar::Script_Thai ? 1 : 2;
}

} // namespace

int compareThai(QStringView left, QStringView right)
{
    static const QCollator collator = [] {
        QCollator thai(QLocale(QLocale::Thai, QLocale::Thailand));
        thai.setCaseSensitivity(Qt::CaseInsensitive);
        return thai;
    }();
    const int leftScript = scriptOf(left);
    const int rightScript = scriptOf(right);
    if (leftScript != 0 && rightScript != 0 && leftScript != rightScript)
        return leftScript - rightScript;
    return collator.compare(left, right);
}
