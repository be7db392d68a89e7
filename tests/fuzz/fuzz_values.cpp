// SPDX-License-Identifier: MIT
// Converts whatever text and number, and reads them a second time with the standard library.
#include "fuzz/require.h"
#include "runtime/runtimeerror.h"
#include "runtime/values.h"

#include <QRegularExpression>

#include <array>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

/// What a conversion comes to: a value, or the number of its error.
struct Outcome
{
    int error = 0;
    double value = 0;

    bool operator==(const Outcome &) const = default;
};

template<typename Conversion>
Outcome outcomeOf(Conversion &&conversion)
{
    try {
        return {0, double(conversion())};
    } catch (const RunTimeError &error) {
        return {error.number(), 0};
    }
}

Outcome readText(const QString &text)
{
    static const QRegularExpression form(QRegularExpression::anchoredPattern(
        u" *([+-]?(?:[0-9][0-9,]*\\.?[0-9]*|\\.[0-9]+)(?:[eE][+-]?[0-9]+)?) *"_s));
    const auto match = form.match(text);
    if (!match.hasMatch())
        return {RunTimeError::TypeMismatch, 0};
    const double value =
        std::strtod(match.captured(1).remove(u',').toLatin1().constData(), nullptr);
    return std::isinf(value) ? Outcome{RunTimeError::Overflow, 0} : Outcome{0, value};
}

/// The whole number next to @p value, of two equally near ones the even one.
template<typename Whole>
Outcome wholeOf(double value)
{
    const double whole = std::nearbyint(value);
    if (whole < std::numeric_limits<Whole>::min() || whole > std::numeric_limits<Whole>::max())
        return {RunTimeError::Overflow, 0};
    return {0, whole};
}

void checkText(const QString &text)
{
    const Outcome read = readText(text);
    require(outcomeOf([&] { return CDbl(text); }) == read, "CDbl reads a text as the library does");
    if (read.error != 0)
        return; // an error is slow to raise, and the others would only pass it on
    require(outcomeOf([&] { return CLng(text); }) == wholeOf<qint32>(read.value),
            "CLng rounds to even");
    require(outcomeOf([&] { return CInt(text); }) == wholeOf<qint16>(read.value),
            "CInt rounds to even");
}

void checkFormat(double amount)
{
    static const QRegularExpression form(
        QRegularExpression::anchoredPattern(u"(-?[1-9][0-9]{0,2}(,[0-9]{3})*)?"_s));
    const QString text = formatBaht(amount);
    const double rounded = std::round(amount);
    require(form.match(text).hasMatch(), "an amount is digits in groups of three");
    require(text.isEmpty() == (rounded == 0), "zero alone shows nothing");
    require(text.isEmpty() || CDbl(text) == rounded, "a shown amount reads back");
}

void checkSum(const std::array<qint32, 2> &amounts)
{
    const qint64 sum = qint64(amounts[0]) + amounts[1];
    const Outcome expected =
        sum == qint32(sum) ? Outcome{0, double(sum)} : Outcome{RunTimeError::Overflow, 0};
    require(outcomeOf([&] { return addLong(amounts); }) == expected, "a sum never wraps round");
}

} // namespace

/// An input is a text; its first eight bytes are a number of whatever bits as well.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QString text = QString::fromUtf8(reinterpret_cast<const char *>(data), qsizetype(size));
    checkText(text);
    if (const Outcome read = readText(text); read.error == 0)
        checkFormat(read.value);
    if (double bits = 0; size >= sizeof bits) {
        std::memcpy(&bits, data, sizeof bits);
        if (std::isfinite(bits))
            checkFormat(bits);
        std::array<qint32, 2> amounts{};
        std::memcpy(amounts.data(), data, sizeof amounts);
        checkSum(amounts);
    }
    return 0;
}
