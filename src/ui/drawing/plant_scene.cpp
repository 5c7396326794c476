// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/drawing/plant_scene.h"

#include <QGraphicsItem>
#include <QPen>
#include <algorithm>

#include "ui/drawing/drawing_style.h"
#include "ui/drawing/grid_item.h"
#include "ui/drawing/label_item.h"
#include "ui/kit/qt_text.h"

namespace idrova {

namespace {

// What lies over what, from the bottom.
constexpr double kLines = 0;
constexpr double kMarkers = 1;
constexpr double kIcons = 2;
constexpr double kArrows = 3;
constexpr double kLabels = 4;

constexpr double kIconInset = 15;  ///< between an icon and the cell's edge

QPointF At(ScreenPoint at) {
    return {static_cast<double>(at.x), static_cast<double>(at.y)};
}

QPen RoundPen(const QColor& colour, double width) {
    return {colour, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

}  // namespace

PlantScene::PlantScene(const Project& project, const std::filesystem::path& folder)
    : project_(project),
      icons_(folder),
      grid_(new GridItem(project)),
      elements_(new QGraphicsRectItem) {
    addItem(grid_);
    addItem(elements_);
    setSceneRect(grid_->boundingRect());
}

void PlantScene::Grid(int firstColumn, int firstRow) {
    delete elements_;
    elements_ = addRect({}, Qt::NoPen);
    grid_->Start(firstColumn, firstRow);
}

void PlantScene::CellIcon(ScreenPoint corner, std::string_view file) {
    const QRectF cell(corner.x, corner.y, project_.Grid.CellWidth, project_.Grid.CellHeight);
    const QRectF place = cell.adjusted(kIconInset, kIconInset, -kIconInset, -kIconInset);
    (new IconItem(icons_, place, file, elements_))->setZValue(kIcons);
}

void PlantScene::PipeLine(int pipe, ScreenPoint from, ScreenPoint to, Rgb colour) {
    AddLine(from, to, RoundPen(ToQt(colour), drawing_style::kPipeWidth), kLines);
    elements_->childItems().last()->setData(0, pipe);
}

void PlantScene::PointMarker(ScreenPoint centre) {
    const double size = drawing_style::kMarker;
    auto* marker = new QGraphicsEllipseItem(-size / 2, -size / 2, size, size, elements_);
    marker->setPos(At(centre));
    marker->setBrush(Qt::black);
    marker->setPen(Qt::NoPen);
    marker->setZValue(kMarkers);
}

void PlantScene::ArrowLine(ScreenPoint from, ScreenPoint to) {
    AddLine(from, to, RoundPen(ToQt(drawing_colour::kArrow), drawing_style::kArrowWidth), kArrows);
}

void PlantScene::TextLabel(ScreenPoint corner, std::string_view text, Rgb background) {
    PlaceLabel(*MakeLabel(text, background), At(corner));
}

void PlantScene::LeaderLine(ScreenPoint from, ScreenPoint to) {
    AddLine(from, to, QPen(drawing_style::kLeader, 0), kLabels);
}

void PlantScene::LeaderLabel(ScreenPoint from, ScreenPoint to, std::string_view text,
                             Rgb background) {
    LeaderLine(from, to);
    LabelItem* label = MakeLabel(text, background);
    const QRectF box = label->boundingRect();
    const double left = to.x < from.x ? to.x - box.width() : to.x;
    const double top = to.y < from.y ? to.y - box.height() : to.y;
    PlaceLabel(*label, {left, top});
}

void PlantScene::ShowCursor(int place) {
    grid_->ShowCursor(place);
}

void PlantScene::PlaceLabel(LabelItem& label, QPointF corner) const {
    const QRectF room = sceneRect();
    const QSizeF size = label.boundingRect().size();
    label.setPos(std::max(std::min(corner.x(), room.right() - size.width()), room.left()),
                 std::max(std::min(corner.y(), room.bottom() - size.height()), room.top()));
}

LabelItem* PlantScene::MakeLabel(std::string_view text, Rgb background) {
    auto* label = new LabelItem(ToQt(text), background, elements_);
    label->setZValue(kLabels);
    return label;
}

void PlantScene::AddLine(ScreenPoint from, ScreenPoint to, const QPen& pen, double layer) {
    auto* line = new QGraphicsLineItem(QLineF(At(from), At(to)), elements_);
    line->setPen(pen);
    line->setZValue(layer);
}

}  // namespace idrova
