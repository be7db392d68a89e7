// SPDX-License-Identifier: MIT
#include "ledger/collation.h"

#include <QCollator>
#include <QLocale>

int compareAnyCase(QStringView left, QStringView right)
{
    return left.compare(right, Qt::CaseInsensitive);
}

int compareThai(QStringView left, QStringView right)
{
    static const QCollator collator = [] {
        QCollator thai(QLocale(QLocale::Thai, QLocale::Thailand));
        thai.setCaseSensitivity(Qt::CaseInsensitive);
        return thai;
    }();
    return collator.compare(left, right);
}
