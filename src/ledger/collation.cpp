// SPDX-License-Identifier: MIT
#include "ledger/collation.h"

#include <QCollator>
#include <QLocale>

int compareAnyCase(QStringView left, QStringView right)
{
    return left.compare(right, Qt::CaseInsensitive);
}

namespace {

/// Returns the index of the first character from @p at on that is not a combining mark. Thai has
/// vowels and tone marks of this kind.
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

/// Sorts Thai letters before all others, as Thai lists do. QCollator alone sorts the scripts
/// differently under Linux and Windows. Returns 0 if the first difference is not between a Thai
/// letter and another one.
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
