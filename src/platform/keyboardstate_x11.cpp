// SPDX-License-Identifier: MIT
#include "platform/keyboardstate.h"

#include <QByteArrayList>
#include <QGuiApplication>

#include <X11/XKBlib.h>
#include <X11/Xatom.h>

#include <array>

namespace desktop {
namespace {

/// The X server's connection, or nothing under another windowing system.
Display *xDisplay()
{
    const auto *x11 =
        qGuiApp ? qGuiApp->nativeInterface<QNativeInterface::QX11Application>() : nullptr;
    return x11 ? x11->display() : nullptr;
}

/// Layouts of the keymap in the order of its groups, such as "us", "th".
QByteArrayList keymapLayouts(Display *display)
{
    // The server keeps what its keymap was made from as five texts, each ended by a zero:
    // rules, model, layouts, variants, options.
    constexpr qsizetype LayoutsText = 2;
    Atom type = None;
    int format = 0;
    unsigned long length = 0;
    unsigned long left = 0;
    unsigned char *text = nullptr;
    const Atom names = XInternAtom(display, "_XKB_RULES_NAMES", True);
    if (names == None
        || XGetWindowProperty(display, DefaultRootWindow(display), names, 0, 1024, False, XA_STRING,
                              &type, &format, &length, &left, &text)
               != Success
        || !text)
        return {};
    const QByteArray all(reinterpret_cast<const char *>(text), qsizetype(length));
    XFree(text);
    return all.split('\0').value(LayoutsText).split(',');
}

struct KnownLayout
{
    const char *id;
    const char *group;
};
constexpr std::array KnownLayouts{KnownLayout{"00000409", "us"}, KnownLayout{"0000041E", "th"}};

bool lockIndicator(unsigned int bit)
{
    unsigned int indicators = 0;
    Display *display = xDisplay();
    return display && XkbGetIndicatorState(display, XkbUseCoreKbd, &indicators) == Success
           && (indicators & bit) != 0;
}

} // namespace

QByteArray keyboardLayoutName()
{
    Display *display = xDisplay();
    XkbStateRec state;
    if (!display || XkbGetState(display, XkbUseCoreKbd, &state) != Success)
        return {};
    const QByteArray group = keymapLayouts(display).value(state.group);
    for (const KnownLayout &layout : KnownLayouts) {
        if (group == layout.group)
            return layout.id;
    }
    return {};
}

void loadKeyboardLayout(const QByteArray &id)
{
    Display *display = xDisplay();
    if (!display)
        return;
    const QByteArrayList groups = keymapLayouts(display);
    for (const KnownLayout &layout : KnownLayouts) {
        const qsizetype group = groups.indexOf(layout.group);
        if (id == layout.id && group >= 0)
            XkbLockGroup(display, XkbUseCoreKbd, static_cast<unsigned int>(group));
    }
}

bool capsLock()
{
    return lockIndicator(1U << 0);
}

bool numLock()
{
    return lockIndicator(1U << 1);
}

} // namespace desktop
