// SPDX-License-Identifier: MIT
// Message boxes. Code without windows calls these functions too: setBoxShower() sets whether a
// window shows a box or a test answers it.
#pragma once

#include <QString>

#include <functional>

/// Title of boxes that are given no other.
inline constexpr QStringView ProgramTitle = u"Mirakla Desk";

enum class BoxButtons { Ok, OkCancel };
enum class BoxIcon { None, Critical, Question, Exclamation, Information };
enum class BoxAnswer { Ok, Cancel };

/// Buttons and icon of a box, and the button that Enter presses.
struct BoxStyle
{
    BoxButtons buttons = BoxButtons::Ok;
    BoxIcon icon = BoxIcon::None;
    BoxAnswer preselected = BoxAnswer::Ok;
};

/// Content of a box. The text is plain text, so "<" and "&" in a name are shown as they are.
struct Box
{
    QString text;
    BoxStyle style;
    QString title;
};

/// Shows a box and returns the button that closed it.
using BoxShower = std::function<BoxAnswer(const Box &)>;

/// Sets what shows boxes and returns the previous function. Application sets showMessageBox().
BoxShower setBoxShower(BoxShower shower);

/// Shows a modal box and returns its answer. Closing a question without an answer means Cancel.
BoxAnswer MsgBox(const QString &text, const BoxStyle &style = {},
                 const QString &title = ProgramTitle.toString());

/// Shows a refusal or a status with one OK button, the warning icon and the title "รายงานสถานะ".
void refuse(const QString &text);

/// Shows a status with one OK button, the information icon and the title "รายงานสถานะ".
void inform(const QString &text);

/// Asks a question with OK and Cancel. Returns true on OK.
bool ask(const QString &text, const QString &title, BoxIcon icon, BoxAnswer preselected);
