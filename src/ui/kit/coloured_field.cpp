// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/kit/coloured_field.h"

#include <QApplication>
#include <QEvent>

#include "ui/kit/controls.h"
#include "ui/kit/qt_text.h"

namespace idrova {

namespace {

constexpr QRgb kUnknown = 0xFFFFC0;      ///< light yellow
constexpr QRgb kUnknownDark = 0x454118;  ///< its counterpart in a dark theme

bool IsDark(const QPalette& theme) {
    return theme.color(QPalette::Base).lightness() < theme.color(QPalette::Text).lightness();
}

QColor GroundColour(const QPalette& theme, FieldGround ground) {
    switch (ground) {
        case FieldGround::Unknown:
            return IsDark(theme) ? kUnknownDark : kUnknown;
        case FieldGround::Computed:
            return theme.color(QPalette::Window);
        case FieldGround::Typed:
            break;
    }
    return theme.color(QPalette::Base);
}

}  // namespace

QColor BeyondLimitColour() {
    return IsDark(QApplication::palette()) ? QColor(0xFF, 0x7A, 0x70) : QColor(0xC0, 0, 0);
}

QColor OldResultColour(const QColor& text, const QColor& ground) {
    return {(text.red() + ground.red()) / 2, (text.green() + ground.green()) / 2,
            (text.blue() + ground.blue()) / 2};
}

ColouredField::ColouredField(const char* name, FieldGround ground) : ground_(ground) {
    Named(this, name);
    Colour();
}

void ColouredField::SetGround(FieldGround ground) {
    if (ground == ground_) return;
    ground_ = ground;
    Colour();
}

void ColouredField::SetOld(bool old) {
    if (old == old_) return;
    old_ = old;
    setToolTip(old ? "Changed since the computation" : "");
    Colour();
}

bool ColouredField::event(QEvent* event) {
    // The desktop may change its theme at any time.
    if (event->type() == QEvent::PaletteChange) Colour();
    return SelectingField::event(event);
}

void ColouredField::Colour() {
    const QPalette theme = QApplication::palette(this);
    const QColor ground = GroundColour(theme, ground_);
    const QColor text = theme.color(QPalette::Active, QPalette::Text);
    QPalette own;
    if (ground_ != FieldGround::Typed) own.setColor(QPalette::Base, ground);
    // An unknown is disabled, and yet to be read.
    if (ground_ == FieldGround::Unknown) own.setColor(QPalette::Text, text);
    if (old_) own.setColor(QPalette::Text, OldResultColour(text, ground));
    setPalette(own);
}

ComputedField::ComputedField(const char* name) : ColouredField(name, FieldGround::Computed) {
    setReadOnly(true);
    setFocusPolicy(Qt::ClickFocus);
}

void ComputedField::Show(const std::string& text, bool old) {
    const QString shown = ToQt(text);
    // The same text put again would drop what the user has selected in it to copy.
    if (shown != QLineEdit::text()) setText(shown);
    SetOld(old);
}

}  // namespace idrova
