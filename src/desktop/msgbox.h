// SPDX-License-Identifier: MIT
// Message boxes, the one way in which the program speaks up. Logic asks here; who shows the box,
// a real window or a prepared answer of a test, is set from outside.
#pragma once

#include <QString>

#include <functional>

/// The program's own title: of the main window's boxes and of boxes that name none.
inline constexpr QStringView ProgramTitle = u"Mirakla Desk";

enum class BoxButtons { Ok, OkCancel };
enum class BoxIcon { None, Critical, Question, Exclamation, Information };
enum class BoxAnswer { Ok, Cancel };

/// How a box looks: its buttons, its icon, and which button Enter presses.
struct BoxStyle
{
    BoxButtons buttons = BoxButtons::Ok;
    BoxIcon icon = BoxIcon::None;
    BoxAnswer preselected = BoxAnswer::Ok;
};

/// One box as asked for. The text is plain: "<" and "&" in a name stand for themselves.
struct Box
{
    QString text;
    BoxStyle style;
    QString title;
};

/// Shows a box and gives the button that closed it.
using BoxShower = std::function<BoxAnswer(const Box &)>;

/// Sets who shows boxes and gives back who did so before. The program sets real windows.
BoxShower setBoxShower(BoxShower shower);

/// Shows a modal box and waits for its answer. Closing a question without an answer is Cancel.
BoxAnswer MsgBox(const QString &text, const BoxStyle &style = {},
                 const QString &title = ProgramTitle.toString());

/// A refusal or status box: one OK button, warning icon, titled "รายงานสถานะ".
void refuse(const QString &text);

/// A status box with the information icon, titled "รายงานสถานะ".
void inform(const QString &text);

/// A question with OK and Cancel; true on OK. An action starts only on OK.
bool ask(const QString &text, const QString &title, BoxIcon icon, BoxAnswer preselected);
