// SPDX-License-Identifier: MIT
#include "desktop/region.h"

#include <QRegularExpression>

#include <optional>

#ifdef Q_OS_WIN
#include <windows.h>
#endif

using namespace Qt::StringLiterals;

namespace {

std::optional<QLocale> givenRegion;

bool countsBuddhistEra(const QLocale &region)
{
#ifdef Q_OS_WIN
    // The user of a Thai desktop may have chosen the other calendar.
    DWORD calendar = 0;
    if (region == QLocale::system()
        && GetLocaleInfoEx(LOCALE_NAME_USER_DEFAULT, LOCALE_ICALENDARTYPE | LOCALE_RETURN_NUMBER,
                           reinterpret_cast<wchar_t *>(&calendar),
                           sizeof(calendar) / sizeof(wchar_t))
               > 0)
        return calendar == CAL_THAI;
#endif
    return region.territory() == QLocale::Thailand;
}

/// Stands for the year while the toolkit writes the rest of a date: it knows neither the era nor, in
/// some regions' short formats, more than two digits of the year.
constexpr QChar YearMark(0xE000);

/// A date format with the mark for its year. Quotes hold words, with any letters in them.
QString withYearMark(const QString &format)
{
    QString marked;
    bool quoted = false;
    for (const QChar sign : format) {
        if (sign == u'\'')
            quoted = !quoted;
        if (quoted || sign != u'y')
            marked += sign;
        else if (!marked.endsWith(YearMark))
            marked += YearMark;
    }
    return marked;
}

QString dateText(QDate day, const QLocale &region, QLocale::FormatType type)
{
    if (!day.isValid())
        return QString();
    const QString text = region.toString(day, withYearMark(region.dateFormat(type)));
    const int year = countsBuddhistEra(region) ? day.year() + 543 : day.year();
    return QString(text).replace(YearMark, QString::number(year));
}

} // namespace

QLocale machineRegion()
{
    if (givenRegion)
        return *givenRegion;
#ifndef Q_OS_WIN
    // The toolkit takes the format from one variable and the territory from another.
    for (const char *variable : {"LC_ALL", "LC_TIME", "LANG"}) {
        const QString name = qEnvironmentVariable(variable);
        if (!name.isEmpty())
            return QLocale(name);
    }
#endif
    return QLocale::system();
}

void setMachineRegion(const QLocale &region)
{
    givenRegion = region;
}

QString shortDate(QDate day, const QLocale &region)
{
    return dateText(day, region, QLocale::ShortFormat);
}

QString longDate(QDate day, const QLocale &region)
{
    return dateText(day, region, QLocale::LongFormat);
}

QString shortTime(QTime time, const QLocale &region)
{
    QString format = region.timeFormat(QLocale::ShortFormat);
    static const QRegularExpression seconds(u"[.:]s+"_s); // some regions' short format has them
    return region.toString(time, format.remove(seconds));
}
