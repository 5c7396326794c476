// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/drawing/plant_scene.h"

#include <QGraphicsItem>
#include <QPen>
#include <algorithm>
#include <utility>

#include "ui/drawing/drawing_style.h"
#include "ui/drawing/grid_item.h"
#include "ui/drawing/label_item.h"
#include "ui/kit/qt_text.h"

namespace idrova {

namespace {

// What lies over what, from the bottom.
constexpr double kFills = 1;
constexpr double kPipes = 2;
constexpr double kCurrentPipe = 3;  ///< another may run between the same two points
constexpr double kMarkers = 4;
constexpr double kIcons = 5;
constexpr double kArrows = 6;
constexpr double kLeaders = 7;
constexpr double kLabels = 8;

constexpr double kIconInset = 15;  ///< between an icon and the cell's edge

QPointF At(ScreenPoint at) {
    return {static_cast<double>(at.x), static_cast<double>(at.y)};
}

QPen RoundPen(const QColor& colour, double width) {
    return {colour, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

QGraphicsItem* MakeLine(const DrawnElement& element, const QPen& pen) {
    auto* line = new QGraphicsLineItem(QLineF(At(element.from), At(element.to)));
    line->setPen(pen);
    return line;
}

QGraphicsItem* MakeMarker(ScreenPoint centre) {
    const double size = drawing_style::kMarker;
    auto* marker = new QGraphicsEllipseItem(-size / 2, -size / 2, size, size);
    marker->setPos(At(centre));
    marker->setBrush(Qt::black);
    marker->setPen(Qt::NoPen);
    return marker;
}

QPen LeaderPen() {
    return {drawing_style::kLeader, 0};
}

/// Selected, to be removed, or being drawn.
bool IsMarked(const DrawnElement& pipe) {
    return pipe.pipe == 0 || pipe.colour == drawing_colour::kSelectedPipe ||
           pipe.colour == drawing_colour::kRemoved;
}

double LayerOf(const DrawnElement& element) {
    switch (element.kind) {
        case ElementKind::CellFill:
            return kFills;
        case ElementKind::PipeLine:
            return IsMarked(element) ? kCurrentPipe : kPipes;
        case ElementKind::PointMarker:
            return kMarkers;
        case ElementKind::CellIcon:
            return kIcons;
        case ElementKind::ArrowLine:
            return kArrows;
        case ElementKind::LeaderLine:
            return kLeaders;
        case ElementKind::TextLabel:
        case ElementKind::LeaderLabel:
            break;
    }
    return kLabels;
}

/// How many elements at the end are the same.
std::size_t CommonTail(const std::vector<DrawnElement>& one,
                       const std::vector<DrawnElement>& other) {
    const auto ends = std::ranges::mismatch(one.rbegin(), one.rend(), other.rbegin(), other.rend());
    return static_cast<std::size_t>(ends.in1 - one.rbegin());
}

}  // namespace

PlantScene::PlantScene(const Project& project, const std::filesystem::path& folder)
    : project_(project), icons_(folder), grid_(new GridItem(project)) {
    addItem(grid_);
    RemoveAll();
    setSceneRect(grid_->boundingRect());
}

void PlantScene::Show(DrawingList drawing) {
    grid_->Start(drawing.firstColumn, drawing.firstRow);
    std::vector<QGraphicsItem*> items = TakeItemsOf(drawing);
    const auto isKept = [](const QGraphicsItem* item) { return item != nullptr; };
    if (std::ranges::none_of(items, isKept)) {
        RemoveAll();
    } else {
        for (const QGraphicsItem* item : items_) delete item;
    }
    for (std::size_t i = 0; i < items.size(); ++i) {
        if (items[i] == nullptr) items[i] = AddElement(drawing.elements[i]);
    }
    items_ = std::move(items);
    shown_ = std::move(drawing);
}

/// All at once, which is far faster than one by one.
void PlantScene::RemoveAll() {
    delete elements_;
    elements_ = addRect({}, Qt::NoPen);
}

/// Takes the items of the elements that are shown already; nothing stands for the others.
std::vector<QGraphicsItem*> PlantScene::TakeItemsOf(const DrawingList& drawing) {
    const auto& before = shown_.elements;
    const auto& after = drawing.elements;
    const std::size_t tail = CommonTail(before, after);
    std::vector<QGraphicsItem*> items(after.size());
    for (std::size_t i = 0; i < after.size(); ++i) {
        const bool inTail = i + tail >= after.size();
        const std::size_t at = inTail ? i + before.size() - after.size() : i;
        const bool same = at < before.size() - (inTail ? 0 : tail) && before[at] == after[i];
        if (same) items[i] = std::exchange(items_[at], nullptr);
    }
    return items;
}

QGraphicsItem* PlantScene::AddElement(const DrawnElement& element) {
    QGraphicsItem* item = MakeItem(element);
    item->setZValue(LayerOf(element));
    item->setParentItem(elements_);
    return item;
}

QGraphicsItem* PlantScene::MakeItem(const DrawnElement& element) {
    switch (element.kind) {
        case ElementKind::CellFill:
            return MakeFill(element);
        case ElementKind::CellIcon:
            return MakeIcon(element);
        case ElementKind::PipeLine: {
            QGraphicsItem* line =
                MakeLine(element, RoundPen(ToQt(element.colour), drawing_style::kPipeWidth));
            if (element.pipe != 0) line->setData(0, element.pipe);
            return line;
        }
        case ElementKind::PointMarker:
            return MakeMarker(element.from);
        case ElementKind::ArrowLine:
            return MakeLine(element, RoundPen(ToQt(element.colour), drawing_style::kArrowWidth));
        case ElementKind::LeaderLine:
            return MakeLine(element, LeaderPen());
        case ElementKind::LeaderLabel: {
            QGraphicsItem* line = MakeLine(element, LeaderPen());
            MakeLabel(element)->setParentItem(line);
            return line;
        }
        case ElementKind::TextLabel:
            break;
    }
    return MakeLabel(element);
}

QRectF PlantScene::CellAt(ScreenPoint corner) const {
    return {At(corner), QSizeF(project_.Grid.CellWidth, project_.Grid.CellHeight)};
}

QGraphicsItem* PlantScene::MakeFill(const DrawnElement& element) const {
    auto* fill = new QGraphicsRectItem(CellAt(element.from));
    fill->setBrush(ToQt(element.colour));
    fill->setPen(Qt::NoPen);
    return fill;
}

QGraphicsItem* PlantScene::MakeIcon(const DrawnElement& element) {
    const QRectF place =
        CellAt(element.from).adjusted(kIconInset, kIconInset, -kIconInset, -kIconInset);
    return new IconItem(icons_, place, element.text);
}

QGraphicsItem* PlantScene::MakeLabel(const DrawnElement& element) const {
    auto* label = new LabelItem(ToQt(element.text), element.colour);
    const QSizeF size = label->boundingRect().size();
    QPointF corner = At(element.from);
    if (element.kind == ElementKind::LeaderLabel) {
        corner = At(element.to);
        if (element.to.x < element.from.x) corner.rx() -= size.width();
        if (element.to.y < element.from.y) corner.ry() -= size.height();
    }
    // As near to its place as the whole label can be seen.
    const QRectF room = sceneRect();
    label->setPos(std::max(std::min(corner.x(), room.right() - size.width()), room.left()),
                  std::max(std::min(corner.y(), room.bottom() - size.height()), room.top()));
    return label;
}

void PlantScene::ShowCursor(int place) {
    grid_->ShowCursor(place);
}

}  // namespace idrova
