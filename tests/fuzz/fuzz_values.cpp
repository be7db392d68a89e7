// SPDX-License-Identifier: MIT
// Converts whatever text to numbers and back, and reads it a second time with the standard library.
#include "fuzz/fuzz.h"
#include "runtime/runtimeerror.h"
#include "runtime/values.h"
#include "support/same.h"

#include <QLocale>
#include <QRegularExpression>

#include <cmath>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {

/// A value, or the number of its error.
QString outcomeOf(const std::function<double()> &conversion)
{
    try {
        return QString::number(conversion(), 'g', 17);
    } catch (const RunTimeError &error) {
        return u"error %1"_s.arg(error.number());
    }
}

} // namespace

void tryInput(const QByteArray &input)
{
    static const QRegularExpression form(QRegularExpression::anchoredPattern(
        u" *([+-]?(?:[0-9][0-9,]*\\.?[0-9]*|\\.[0-9]+)(?:[eE][+-]?[0-9]+)?) *"_s));
    const QString text = QString::fromUtf8(input);
    const auto match = form.match(text);
    const double value = match.captured(1).remove(u',').toDouble();
    const auto due = [&](double number, double most) {
        const QString read =
            number < -most - 1 || number > most ? u"error 6"_s : QString::number(number, 'g', 17);
        return match.hasMatch() ? read : u"error 13"_s;
    };
    const double whole = std::nearbyint(value); // of two equally near ones the even one
    same(text,
         {outcomeOf([&] { return CDbl(text); }), outcomeOf([&] { return CLng(text); }),
          outcomeOf([&] { return CInt(text); }), outcomeOf([&] {
              return addLong({CLng(text), CLng(text)});
          })},
         {due(value, std::numeric_limits<double>::max()), due(whole, 2'147'483'647),
          due(whole, 32'767), due(2 * whole, 2'147'483'647)});
    const QString shown = QLocale(QLocale::English).toString(std::round(value), 'f', 0);
    if (std::isfinite(value))
        same(text, {formatBaht(value)}, {std::round(value) == 0 ? QString() : shown});
}
