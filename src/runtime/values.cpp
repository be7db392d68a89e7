// SPDX-License-Identifier: MIT
#include "runtime/values.h"

#include "runtime/runtimeerror.h"

#include <QByteArray>

#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

bool isDigit(QChar c)
{
    return c >= u'0' && c <= u'9'; // QChar::isDigit() accepts Thai digits too
}

/// Appends the digits of @p text from @p at on to @p digits and returns the index after them.
/// Skips commas if @p commas is true.
qsizetype takeDigits(QStringView text, qsizetype at, bool commas, QByteArray &digits)
{
    while (at < text.size() && (isDigit(text[at]) || (commas && text[at] == u','))) {
        if (text[at] != u',')
            digits += text[at].toLatin1();
        ++at;
    }
    return at;
}

/// Removes the commas and checks the syntax. Returns an empty array if the text is not a number.
QByteArray plainNumber(QStringView text)
{
    QByteArray plain;
    qsizetype at = 0;
    if (at < text.size() && (text[at] == u'-' || text[at] == u'+'))
        plain += text[at++].toLatin1();
    QByteArray whole;
    QByteArray fraction;
    if (at < text.size() && text[at] != u',')
        at = takeDigits(text, at, true, whole);
    if (at < text.size() && text[at] == u'.')
        at = takeDigits(text, at + 1, false, fraction);
    if (whole.isEmpty() && fraction.isEmpty())
        return {};
    plain += whole + '.' + fraction + '0';
    if (at < text.size() && (text[at] == u'e' || text[at] == u'E')) {
        ++at;
        plain += 'e';
        if (at < text.size() && (text[at] == u'-' || text[at] == u'+'))
            plain += text[at++].toLatin1();
        QByteArray exponent;
        at = takeDigits(text, at, false, exponent);
        if (exponent.isEmpty())
            return {};
        plain += exponent;
    }
    return at == text.size() ? plain : QByteArray();
}

template<typename Whole>
Whole roundedTo(double value)
{
    double rounded = std::floor(value);
    const double rest = value - rounded;
    if (rest > 0.5 || (rest == 0.5 && std::fmod(rounded, 2.0) != 0.0))
        rounded += 1.0;
    const bool fits = rounded >= double(std::numeric_limits<Whole>::min())
                      && rounded <= double(std::numeric_limits<Whole>::max());
    if (!fits)
        raiseOverflow();
    return static_cast<Whole>(rounded);
}

} // namespace

QString trimBlanks(QStringView text)
{
    while (text.startsWith(u' '))
        text = text.mid(1);
    while (text.endsWith(u' '))
        text.chop(1);
    return text.toString();
}

QString formatBaht(double amount)
{
    const double rounded = std::round(amount); // a half goes away from zero
    if (rounded == 0.0)
        return QString();
    QString text = QString::number(std::fabs(rounded), 'f', 0);
    for (qsizetype at = text.size() - 3; at > 0; at -= 3)
        text.insert(at, u',');
    return rounded < 0 ? u'-' + text : text;
}

double CDbl(QStringView text)
{
    const QByteArray plain = plainNumber(trimBlanks(text));
    if (plain.isEmpty())
        raiseTypeMismatch();
    const double value = QString::fromLatin1(plain).toDouble(); // 0 on underflow
    if (std::isinf(value))
        raiseOverflow();
    return value;
}

double numberOf(const QVariant &value)
{
    if (value.isNull())
        raiseInvalidUseOfNull();
    return value.typeId() == QMetaType::QString ? CDbl(value.toString()) : value.toDouble();
}

qint32 CLng(double value)
{
    return roundedTo<qint32>(value);
}

qint32 CLng(QStringView text)
{
    return CLng(CDbl(text));
}

qint16 CInt(double value)
{
    return roundedTo<qint16>(value);
}

qint16 CInt(QStringView text)
{
    return CInt(CDbl(text));
}

qint32 addLong(std::span<const qint32> amounts)
{
    qint32 sum = 0;
    for (const qint32 amount : amounts) {
        if (qAddOverflow(sum, amount, &sum))
            raiseOverflow();
    }
    return sum;
}

qint32 addLong(std::initializer_list<qint32> amounts)
{
    return addLong(std::span(amounts.begin(), amounts.size()));
}
