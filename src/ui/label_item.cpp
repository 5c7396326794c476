// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/label_item.h"

#include <QFontMetricsF>
#include <QPainter>

#include "ui/drawing_style.h"

namespace idrova {

namespace {

constexpr double kPadding = 25;  ///< between the text and the box's edge

const QFont& LabelFont() {
    static const QFont font = drawing_style::Font(drawing_style::kLabelHeight);
    return font;
}

}  // namespace

LabelItem::LabelItem(const QString& text, Rgb background, QGraphicsItem* parent)
    : QGraphicsItem(parent), text_(text), background_(background) {
    const QFontMetricsF metrics(LabelFont());
    box_ = {0, 0, metrics.horizontalAdvance(text) + 2 * kPadding, metrics.height()};
}

void LabelItem::paint(QPainter* painter, const QStyleOptionGraphicsItem* /*option*/,
                      QWidget* /*widget*/) {
    painter->setRenderHint(QPainter::Antialiasing, false);
    painter->setPen(QPen(drawing_style::kLeader, 0));
    painter->setBrush(ToQt(background_));
    painter->drawRect(box_);
    painter->setPen(Qt::black);
    painter->setFont(LabelFont());
    painter->drawText(box_, Qt::AlignCenter | Qt::TextDontClip, text_);
}

}  // namespace idrova
