// SPDX-License-Identifier: MIT
#include "ledger/collation.h"

#include <QCollator>
#include <QLocale>

int compareAnyCase(QStringView left, QStringView right)
{
    return left.compare(right, Qt::CaseInsensitive);
}

namespace {

/// The place of the first letter of @p text from @p at on; vowel and tone marks, which a list
/// heeds last, are passed over.
qsizetype skipMarks(QStringView text, qsizetype at)
{
    while (at < text.size() && text[at].isMark())
        ++at;
    return at;
}

bool isThai(QChar letter)
{
    return letter.script() == QChar::Script_Thai;
}

/// Thai letters stand before Latin ones, as in a Thai list. Left to itself, each desktop has its
/// own way with the two, and one book would be listed in two orders. Gives 0 where the first
/// difference is not one between the two.
int compareScripts(QStringView left, QStringView right)
{
    for (qsizetype one = 0, other = 0;; ++one, ++other) {
        one = skipMarks(left, one);
        other = skipMarks(right, other);
        if (one >= left.size() || other >= right.size())
            return 0;
        if (left[one].toCaseFolded() == right[other].toCaseFolded())
            continue;
        const bool letters = left[one].isLetter() && right[other].isLetter();
        return letters ? int(isThai(right[other])) - int(isThai(left[one])) : 0;
    }
}

} // namespace

int compareThai(QStringView left, QStringView right)
{
    static const QCollator collator = [] {
        QCollator thai(QLocale(QLocale::Thai, QLocale::Thailand));
        thai.setCaseSensitivity(Qt::CaseInsensitive);
        return thai;
    }();
    const int scripts = compareScripts(left, right);
    return scripts != 0 ? scripts : collator.compare(left, right);
}
