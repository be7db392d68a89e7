// SPDX-License-Identifier: MIT
#include "fields/filters.h"

#include "desktop/keyboardstate.h"
#include "desktop/keycodes.h"
#include "desktop/msgbox.h"

using namespace Qt::StringLiterals;

namespace {

constexpr BoxStyle FilterBox{BoxButtons::Ok, BoxIcon::Exclamation, BoxAnswer::Ok};

void refuseKey(const QString &text)
{
    MsgBox(text, FilterBox, u"รายงานความผิดพลาด"_s);
}

bool passesAnyFilter(int code)
{
    return (code >= u'0' && code <= u'9') || code == BackspaceCode || code == EnterCode;
}

} // namespace

int DigitFilter(int code)
{
    if (passesAnyFilter(code))
        return code;
    refuseKey(u"ช่องนี้ กรอกได้แค่ ( ตัวเลข ) เท่านั้น !!"_s);
    return 0;
}

int LineFilter(int code)
{
    if (passesAnyFilter(code) || code == u'-')
        return code;
    refuseKey(u"ช่องนี้ กรอกได้แค่ (ตัวเลข) เท่านั้น !!"_s);
    return 0;
}

int MaxLengthFilter(qsizetype length, qsizetype limit, int code)
{
    return length >= limit && code != BackspaceCode ? 0 : code;
}

void refuseRightClick()
{
    refuseKey(u"ช่องนี้ กรอกได้แค่ (ตัวเลข) เท่านั้น !!"_s);
}

void refuseRightClickInLine()
{
    refuseKey(u"ห้ามคลิกขวาในช่องนี้ !!"_s);
}

bool SetKeyboardLayout(const QByteArray &id)
{
    if (desktop::keyboardLayoutName() == id)
        return true;
    desktop::loadKeyboardLayout(id);
    return desktop::keyboardLayoutName() == id;
}

bool SetEnglishKeyboard()
{
    return SetKeyboardLayout(EnglishLayout);
}
