// SPDX-License-Identifier: MIT
#include "entry/keyboardpicture.h"

#include "entry/voice.h"

#include <QPainter>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// A key in the picture. x and width are in widths of an ordinary key, y in rows.
struct DrawnKey
{
    const char *name = nullptr;
    double x = 0;
    double y = 0;
    double width = 1.0;
};

constexpr double FunctionWidth = 1.2;
constexpr double Right = 16.0; ///< x of the keys to the right of the main keyboard
constexpr double PictureWidth = Right + 3 * FunctionWidth;
constexpr double RowHeight = 1.25; ///< in widths of an ordinary key
constexpr double PictureHeight = 4.3 * RowHeight;

constexpr std::array DrawnKeys{
    DrawnKey{"Esc", 0, 0},
    DrawnKey{"F1", 1.2, 0, FunctionWidth},
    DrawnKey{"F2", 2.4, 0, FunctionWidth},
    DrawnKey{"F3", 3.6, 0, FunctionWidth},
    DrawnKey{"F4", 4.8, 0, FunctionWidth},
    DrawnKey{"F5", 6.1, 0, FunctionWidth},
    DrawnKey{"F6", 7.3, 0, FunctionWidth},
    DrawnKey{"F7", 8.5, 0, FunctionWidth},
    DrawnKey{"F8", 9.7, 0, FunctionWidth},
    DrawnKey{"F9", 11.0, 0, FunctionWidth},
    DrawnKey{"F10", 12.2, 0, FunctionWidth},
    DrawnKey{"F11", 13.4, 0, FunctionWidth},
    DrawnKey{"F12", 14.6, 0, FunctionWidth},
    DrawnKey{"", 0, 1.3},
    DrawnKey{"1", 1, 1.3},
    DrawnKey{"2", 2, 1.3},
    DrawnKey{"3", 3, 1.3},
    DrawnKey{"4", 4, 1.3},
    DrawnKey{"5", 5, 1.3},
    DrawnKey{"6", 6, 1.3},
    DrawnKey{"7", 7, 1.3},
    DrawnKey{"8", 8, 1.3},
    DrawnKey{"9", 9, 1.3},
    DrawnKey{"0", 10, 1.3},
    DrawnKey{"-", 11, 1.3},
    DrawnKey{"", 12, 1.3},
    DrawnKey{"Backspace", 13, 1.3, 2.8},
    DrawnKey{"", 0, 2.3, 13.0},
    DrawnKey{"Enter", 13.0, 2.3, 2.8},
    DrawnKey{"Ctrl", 0, 3.3, 1.8},
    DrawnKey{"", 1.8, 3.3, 12.2},
    DrawnKey{"Ctrl", 14, 3.3, 1.8},
    DrawnKey{"", Right, 0, FunctionWidth},
    DrawnKey{"Home", Right + FunctionWidth, 0, FunctionWidth},
    DrawnKey{"PgUp", Right + 2 * FunctionWidth, 0, FunctionWidth},
    DrawnKey{"Delete", Right, 1.3, FunctionWidth},
    DrawnKey{"End", Right + FunctionWidth, 1.3, FunctionWidth},
    DrawnKey{"PgDn", Right + 2 * FunctionWidth, 1.3, FunctionWidth},
    DrawnKey{"↑", Right + FunctionWidth, 2.3, FunctionWidth},
    DrawnKey{"←", Right, 3.3, FunctionWidth},
    DrawnKey{"↓", Right + FunctionWidth, 3.3, FunctionWidth},
    DrawnKey{"→", Right + 2 * FunctionWidth, 3.3, FunctionWidth},
};

/// Returns the kind that a key chooses, or nullptr.
const KindEntry *kindOfKey(const QString &name)
{
    for (const KindKey &key : KindKeys) {
        for (const char *known : key.keys) {
            if (known && name == QString::fromUtf8(known))
                return &KindEntries[size_t(indexOfKind(key.kind))];
        }
    }
    return nullptr;
}

/// Returns a colour for kinds whose caption names the top, one for those that name the bottom, and
/// one for the rest, which name both sides or none (tod, straight and tod).
QColor kindColor(const KindEntry &kind)
{
    const bool top = kind.caption.contains(u"บน");
    const bool bottom = kind.caption.contains(u"ล่าง");
    if (top && !bottom)
        return {0xCF, 0xE6, 0xF5};
    if (bottom && !top)
        return {0xFB, 0xE2, 0xBF};
    return {0xD9, 0xEE, 0xCF};
}

void drawKey(QPainter &painter, const DrawnKey &key, double unit)
{
    const QString name = QString::fromUtf8(key.name);
    const KindEntry *kind = kindOfKey(name);
    const QRectF place(key.x * unit, key.y * RowHeight * unit, key.width * unit, RowHeight * unit);
    const QRectF cap = place.adjusted(2, 2, -2, -2);
    const QPalette colors;
    painter.setPen(QPen(colors.color(QPalette::Mid), 1));
    painter.setBrush(kind ? kindColor(*kind) : colors.color(QPalette::Button));
    painter.drawRoundedRect(cap, unit * 0.1, unit * 0.1);

    QFont font = painter.font();
    font.setBold(!kind);
    font.setPixelSize(int(unit * 0.25));
    painter.setFont(font);
    painter.setPen(kind ? QColor(Qt::black) : colors.color(QPalette::ButtonText));
    const QRectF text = cap.adjusted(unit * 0.06, unit * 0.04, -unit * 0.04, -unit * 0.02);
    painter.drawText(text, kind ? Qt::AlignLeft | Qt::AlignTop : Qt::AlignCenter, name);
    if (kind) {
        font.setBold(true);
        font.setPixelSize(int(unit * 0.27));
        painter.setFont(font);
        painter.drawText(text, int(Qt::AlignHCenter) | Qt::AlignBottom | Qt::TextWordWrap,
                         kind->caption.toString());
    }
}

} // namespace

QSize KeyboardPicture::sizeHint() const
{
    constexpr double Unit = 64;
    return {int(PictureWidth * Unit), int(PictureHeight * Unit)};
}

void KeyboardPicture::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double unit = std::min(width() / PictureWidth, height() / PictureHeight);
    painter.translate((width() - unit * PictureWidth) / 2, (height() - unit * PictureHeight) / 2);
    for (const DrawnKey &key : DrawnKeys)
        drawKey(painter, key, unit);
}
