// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/drawing/label_item.h"

#include <QFontMetricsF>
#include <QPainter>

#include "ui/drawing/drawing_style.h"

namespace idrova {

namespace {

constexpr double kPadding = 25;  ///< between the text and the box's edge

const QFont& LabelFont() {
    static const QFont font = drawing_style::Font(drawing_style::kLabelHeight);
    return font;
}

const QFontMetricsF& LabelMetrics() {
    static const QFontMetricsF metrics(LabelFont());
    return metrics;
}

}  // namespace

LabelItem::LabelItem(const QString& text, Rgb background) : text_(text), background_(background) {
    text_.setTextFormat(Qt::PlainText);
    text_.prepare({}, LabelFont());
    box_ = {0, 0, LabelMetrics().horizontalAdvance(text) + 2 * kPadding, LabelMetrics().height()};
}

void LabelItem::paint(QPainter* painter, const QStyleOptionGraphicsItem* /*option*/,
                      QWidget* /*widget*/) {
    painter->setRenderHint(QPainter::Antialiasing, false);
    painter->setPen(QPen(drawing_style::kLabelFrame, 0));
    painter->setBrush(ToQt(background_));
    painter->drawRect(box_);
    painter->setPen(ToQt(InkOn(background_)));
    painter->setFont(LabelFont());
    painter->drawStaticText(QPointF(kPadding, 0), text_);
}

}  // namespace idrova
