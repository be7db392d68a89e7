// SPDX-License-Identifier: MIT
#include "drawcheck/result.h"

#include "runtime/values.h"

QString resultNumber(const ResultDigits &digits, const char *places)
{
    QString number;
    for (const char *place = places; *place != '\0'; ++place)
        number += trimBlanks(digits[size_t(*place - 'a')]);
    return number;
}

QStringList winningNumbers(const ResultDigits &digits, size_t betClass)
{
    QStringList numbers;
    const QList<QByteArray> spelled = QByteArray(WinningPlaces[betClass]).split(' ');
    for (const QByteArray &places : spelled)
        numbers += resultNumber(digits, places.constData());
    numbers.removeDuplicates();
    return numbers;
}
