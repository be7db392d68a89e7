// SPDX-License-Identifier: MIT
#include "platform/region.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

QString dateText(QDate day, const QLocale &region, QLocale::FormatType type)
{
    if (!day.isValid())
        return QString();
    QString format = region.dateFormat(type);
    const int year = region.territory() == QLocale::Thailand ? day.year() + 543 : day.year();
    // The year goes in as quoted text: the toolkit knows neither the era nor, in some regions'
    // short formats, more than two digits of it.
    static const QRegularExpression yearPart(u"y+"_s);
    format.replace(yearPart, u'\'' + QString::number(year) + u'\'');
    return region.toString(day, format);
}

} // namespace

QLocale machineRegion()
{
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
