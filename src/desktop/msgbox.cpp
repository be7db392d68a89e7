// SPDX-License-Identifier: MIT
#include "desktop/msgbox.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace {

BoxShower boxShower;

} // namespace

BoxShower setBoxShower(BoxShower shower)
{
    return std::exchange(boxShower, std::move(shower));
}

BoxAnswer MsgBox(const QString &text, const BoxStyle &style, const QString &title)
{
    Q_ASSERT_X(boxShower, "MsgBox", "setBoxShower() was not called");
    return boxShower({text, style, title});
}

void refuse(const QString &text)
{
    MsgBox(text, {BoxButtons::Ok, BoxIcon::Exclamation}, u"รายงานสถานะ"_s);
}

void inform(const QString &text)
{
    MsgBox(text, {BoxButtons::Ok, BoxIcon::Information}, u"รายงานสถานะ"_s);
}

bool ask(const QString &text, const QString &title, BoxIcon icon, BoxAnswer preselected)
{
    return MsgBox(text, {BoxButtons::OkCancel, icon, preselected}, title) == BoxAnswer::Ok;
}
