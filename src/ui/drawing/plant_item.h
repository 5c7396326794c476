// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QGraphicsItem>
#include <QStaticText>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "editor/drawing_list.h"
#include "ui/drawing/cell_icons.h"

namespace idrova {

/// What a drawing shows above its cells. One item paints all of it: an item for each of some
/// thousand elements takes several times as long to make and to paint.
class PlantItem : public QGraphicsItem {
  public:
    /// Nothing is painted outside `room`.
    PlantItem(const Project& project, const std::filesystem::path& folder, const QRectF& room);

    /// Shows this drawing; what was shown already is not painted anew.
    void Show(DrawingList drawing);
    const DrawingList& Shown() const { return shown_; }

    QRectF boundingRect() const override { return room_; }
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

  private:
    /// Laid out once: most texts come back at the next change.
    struct LabelText {
        QStaticText text;
        QSizeF box;
    };

    const LabelText& TextOf(const std::string& text);
    QRectF CellAt(ScreenPoint corner) const;
    QRectF LabelBox(const DrawnElement& element);
    QRectF BoundsOf(const DrawnElement& element);
    void Paint(QPainter& painter, const DrawnElement& element);
    void PaintLabel(QPainter& painter, const DrawnElement& element);

    const Project& project_;
    CellIcons icons_;
    const QRectF room_;
    DrawingList shown_;
    std::vector<QRectF> bounds_;      ///< of the elements shown, in their order
    std::vector<std::size_t> order_;  ///< of painting, from the bottom
    std::map<std::string, LabelText> texts_;
};

}  // namespace idrova
