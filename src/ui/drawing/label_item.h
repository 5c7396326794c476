// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QGraphicsItem>
#include <QStaticText>
#include <QString>

#include "editor/drawing_surface.h"

namespace idrova {

/// One line of text in a box. Its position is the box's top left corner.
class LabelItem : public QGraphicsItem {
  public:
    LabelItem(const QString& text, Rgb background);

    QRectF boundingRect() const override { return box_; }
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

  private:
    QStaticText text_;
    const Rgb background_;
    QRectF box_;
};

}  // namespace idrova
