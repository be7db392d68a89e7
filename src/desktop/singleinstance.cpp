// SPDX-License-Identifier: MIT
#include "desktop/singleinstance.h"

#include "desktop/msgbox.h"

using namespace Qt::StringLiterals;

void refuseSecondCopy()
{
    MsgBox(u"โปรแกรมถูกเปิดใช้อยู่แล้ว !!  ไม่สามารถเปิด ซ้อนกันเกิน 1 โปรแกรมในเครื่องเดียว.."_s,
           {BoxButtons::Ok, BoxIcon::Critical});
}
