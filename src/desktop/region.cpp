// SPDX-License-Identifier: MIT
#include "desktop/region.h"

#include <QRegularExpression>

#include <optional>

#ifdef Q_OS_WIN
#include <windows.h>
#endif

using namespace Qt::StringLiterals;

namespace {

std::optional<QLocale> regionOfTests;

bool countsBuddhistEra(const QLocale &region)
{
#ifdef Q_OS_WIN
    // A Thai user may have chosen the Gregorian calendar.
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

/// Placeholder for the year while QLocale formats the rest of a date. QLocale does not know the
/// Buddhist era, and some short formats have only two digits of the year.
constexpr QChar YearMark(0xE000);

/// Replaces the year in a date format by the mark. A "y" inside quotes is literal text and stays.
QString withYearMark(const QString &format)
{
    QString marked;
    bool quoted = false;
    for (const QChar letter : format) {
        if (letter == u'\'')
            quoted = !quoted;
        if (quoted || letter != u'y')
            marked += letter;
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
    if (regionOfTests)
        return *regionOfTests;
#ifndef Q_OS_WIN
    // QLocale::system() takes the date format and the territory from different variables.
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
    regionOfTests = region;
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
    static const QRegularExpression seconds(u"[.:]s+"_s); // some short formats have them
    return region.toString(time, format.remove(seconds));
}
