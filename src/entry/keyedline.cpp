// SPDX-License-Identifier: MIT
#include "entry/keyedline.h"

#include "desktop/msgbox.h"
#include "runtime/values.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

/// The limit of 99,999 baht is checked by the number of characters, so "000100" fails too.
constexpr qsizetype LongestAmount = 5;

bool allEqual(const QString &digits)
{
    return digits.size() >= 2 && digits.count(digits.front()) == digits.size();
}

struct NumberCheck
{
    FieldCheck check = NumberGiven;
    bool (*fails)(const QString &number) = nullptr;
    QStringView refusal;
};

constexpr std::array NumberChecks{
    NumberCheck{NumberGiven, [](const QString &number) { return number.isEmpty(); },
                u"กรุณาระบุ ( เลข ) ที่ต้องการ  ก่อนเริ่มบันทึก"},
    NumberCheck{AtLeastTwoDigits, [](const QString &number) { return number.size() == 1; },
                u"ไม่สามารถบันทึกได้ ( เลขต้องมีอย่างน้อย 2 หลัก ) โปรดทำการแก้ไข ก่อนเริ่มบันทึก"},
    NumberCheck{AtMostThreeDigits, [](const QString &number) { return number.size() > 3; },
                u"ไม่สามารถบันทึกได้ ( เลขมีได้สูงสุดเพียง 3 หลัก ) โปรดทำการแก้ไข ก่อนเริ่มบันทึก"},
    NumberCheck{OneDigit, [](const QString &number) { return number.size() > 1; },
                u"ไม่สามารถบันทึกได้ ( เลขมีได้สูงสุดเพียง 1 หลัก ) โปรดทำการแก้ไข ก่อนเริ่มบันทึก"},
    NumberCheck{DigitsDiffer, allEqual,
                u"ไม่สามารถเพิ่มเลขได้ ( เนื่องจากตัวเลขซ้ำกันหมด ) โปรดบันทึกเป็นประเภท ตรง แทน.."},
    NumberCheck{NoNumber, [](const QString &number) { return !number.isEmpty(); },
                u"ไม่สามารถบันทึกได้ ( 00-99 ไม่ต้องใส่เลข ให้ใส่จำนวนเงิน เช่น -500 ) "
                u"โปรดทำการแก้ไข ก่อนเริ่มบันทึก"},
};

bool passesAmountChecks(const QString &amount)
{
    if (amount.isEmpty()) {
        refuse(u"กรุณาระบุ ( จำนวนเงิน ) ที่ต้องการ  ก่อนเริ่มบันทึก"_s);
    } else if (CDbl(amount) < 1) {
        refuse(u"ไม่สามารถบันทึกได้ ( จำนวนเงิน ขั้นต่ำ = 1 บาท ) โปรดทำการแก้ไข ก่อนเริ่มบันทึก"_s);
    } else if (amount.size() > LongestAmount) {
        refuse(u"ไม่สามารถบันทึกได้ ( จำนวนเงิน สูงสุด = 99,999 บาท ) โปรดทำการแก้ไข ก่อนเริ่มบันทึก"_s);
    } else {
        return true;
    }
    return false;
}

} // namespace

LineForm splitLine(Ticket &ticket, const QString &text, BetKind kind)
{
    const auto dash = text.indexOf(u'-');
    if (dash < 0) {
        refuse(u"ไม่สามารถเพิ่มเลขได้ ( รูปแบบตัวเลข - ) ไม่ถูกต้อง !! โปรดลองอีกครั้ง.. "_s);
        return LineForm::Refused;
    }
    if (kind == BetKind::NoKind) {
        refuse(u"ไม่สามารถเพิ่มเลขได้ ( โปรดเลือกประเภทของตัวเลข ) โปรดลองอีกครั้ง.. "_s);
        return LineForm::NoKindChosen;
    }
    if (text.count(u'-') != (isTurnKind(kind) ? 2 : 1)) {
        refuse(u"ไม่สามารถเพิ่มเลขได้ เลขกลับที่ถูกต้อง ( เลข-จำนวนเงินหลัก-จำนวนเงินลอง ) "
               u"โปรดลองอีกครั้ง.. "_s);
        return LineForm::Refused;
    }
    ticket.KeyedNumber = text.left(dash);
    ticket.KeyedAmount = text.mid(dash + 1);
    if (isTurnKind(kind)) {
        const auto second = ticket.KeyedAmount.indexOf(u'-');
        ticket.KeyedTryAmount = ticket.KeyedAmount.mid(second + 1);
        ticket.KeyedAmount.truncate(second);
    }
    return LineForm::Good;
}

bool passesChecks(const Ticket &ticket, unsigned checks)
{
    const QString number = trimBlanks(ticket.KeyedNumber);
    for (const NumberCheck &rule : NumberChecks) {
        if ((checks & rule.check) != 0 && rule.fails(number)) {
            refuse(rule.refusal.toString());
            return false;
        }
    }
    if ((checks & AmountGood) != 0 && !passesAmountChecks(trimBlanks(ticket.KeyedAmount)))
        return false;
    return (checks & TryAmountGood) == 0 || passesAmountChecks(trimBlanks(ticket.KeyedTryAmount));
}
