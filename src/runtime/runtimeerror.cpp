// SPDX-License-Identifier: MIT
#include "runtime/runtimeerror.h"

using namespace Qt::StringLiterals;

RunTimeError::RunTimeError(Number number, const QString &description)
    : m_number(number), m_description(description), m_what(report().toUtf8())
{}

QString RunTimeError::report() const
{
    const QString code =
        m_number == DatabaseFailure
            ? u"%1 (%2)"_s.arg(int(m_number)).arg(uint(m_number), 8, 16, QLatin1Char('0')).toUpper()
            : QString::number(int(m_number));
    return u"Run-time error '"_s + code + u"': "_s + m_description;
}

void raiseTypeMismatch()
{
    throw RunTimeError(RunTimeError::TypeMismatch, u"Type mismatch"_s);
}

void raiseOverflow()
{
    throw RunTimeError(RunTimeError::Overflow, u"Overflow"_s);
}

void raiseInvalidUseOfNull()
{
    throw RunTimeError(RunTimeError::InvalidUseOfNull, u"Invalid use of Null"_s);
}
