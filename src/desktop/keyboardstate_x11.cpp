// SPDX-License-Identifier: MIT
#include "desktop/keyboardstate.h"

#include <QByteArrayList>
#include <QGuiApplication>

#include <X11/XKBlib.h>
#include <X11/Xatom.h>
#include <X11/keysym.h>

#include <array>

namespace desktop {
namespace {

/// Returns the connection to the X server, or nullptr on another platform.
Display *xDisplay()
{
    const auto *x11 =
        qGuiApp ? qGuiApp->nativeInterface<QNativeInterface::QX11Application>() : nullptr;
    return x11 ? x11->display() : nullptr;
}

/// Returns the layouts of the keymap, such as "us", "th", in the order of its XKB groups.
QByteArrayList keymapLayouts(Display *display)
{
    // The property has five zero-terminated strings: rules, model, layouts, variants, options.
    constexpr qsizetype LayoutsAt = 2;
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
    return all.split('\0').value(LayoutsAt).split(',');
}

struct KnownLayout
{
    const char *id;
    const char *group;
};
constexpr std::array KnownLayouts{KnownLayout{"00000409", "us"}, KnownLayout{"0000041E", "th"}};

/// The scan codes of the digit row are the same in every layout: 1 to 9, then 0, then minus.
constexpr quint32 FirstDigitScanCode = 10;
constexpr std::array DigitRowCodes{49, 50, 51, 52, 53, 54, 55, 56, 57, 48, 189};

struct SymbolCode
{
    quint32 symbol;
    int code;
};
constexpr std::array SymbolCodes{
    SymbolCode{XK_Prior, 33},        SymbolCode{XK_Next, 34},      SymbolCode{XK_End, 35},
    SymbolCode{XK_Home, 36},         SymbolCode{XK_Left, 37},      SymbolCode{XK_Up, 38},
    SymbolCode{XK_Right, 39},        SymbolCode{XK_Down, 40},      SymbolCode{XK_Delete, 46},
    SymbolCode{XK_KP_Prior, 33},     SymbolCode{XK_KP_Next, 34},   SymbolCode{XK_KP_End, 35},
    SymbolCode{XK_KP_Home, 36},      SymbolCode{XK_KP_Left, 37},   SymbolCode{XK_KP_Up, 38},
    SymbolCode{XK_KP_Right, 39},     SymbolCode{XK_KP_Down, 40},   SymbolCode{XK_KP_Delete, 46},
    SymbolCode{XK_KP_Subtract, 109}, SymbolCode{XK_Control_L, 17}, SymbolCode{XK_Control_R, 17},
};

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

int nativeKeyCode(quint32 scanCode, quint32 virtualKey)
{
    if (scanCode == 0 && virtualKey == 0)
        return -1;
    // In the digit row, layout and Shift change the symbol, so the scan code decides. On the keypad
    // Num Lock switches between digits and arrows, so the symbol decides.
    if (scanCode >= FirstDigitScanCode && scanCode < FirstDigitScanCode + DigitRowCodes.size())
        return DigitRowCodes[scanCode - FirstDigitScanCode];
    if (virtualKey >= XK_F1 && virtualKey <= XK_F12)
        return int(virtualKey - XK_F1) + 112;
    if (virtualKey >= XK_KP_0 && virtualKey <= XK_KP_9)
        return int(virtualKey - XK_KP_0) + 96;
    for (const SymbolCode &known : SymbolCodes) {
        if (virtualKey == known.symbol)
            return known.code;
    }
    return 0;
}

} // namespace desktop
