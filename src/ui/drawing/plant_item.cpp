// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/drawing/plant_item.h"

#include <QFontMetricsF>
#include <QGraphicsScene>
#include <QPainter>
#include <QStyleOptionGraphicsItem>
#include <algorithm>
#include <numeric>
#include <utility>

#include "ui/drawing/drawing_style.h"
#include "ui/kit/qt_text.h"

namespace idrova {

namespace {

// What lies over what, from the bottom.
constexpr int kFills = 1;
constexpr int kPipes = 2;
constexpr int kMarkedPipes = 3;  ///< another may run between the same two points
constexpr int kMarkers = 4;
constexpr int kIcons = 5;
constexpr int kArrows = 6;
constexpr int kLeaders = 7;
constexpr int kLabels = 8;

constexpr double kIconInset = 15;     ///< between an icon and the cell's edge
constexpr double kLabelPadding = 25;  ///< between a text and its box's edge
constexpr double kBlur = 30;          ///< that a line or box may reach beyond its shape
constexpr std::size_t kMostTexts = 4000;
constexpr std::size_t kManyChanges = 40;  ///< from where all at once is faster

QPointF At(ScreenPoint at) {
    return {static_cast<double>(at.x), static_cast<double>(at.y)};
}

QPen RoundPen(const QColor& colour, double width) {
    return {colour, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

QPen PenOf(const DrawnElement& line) {
    if (line.kind == ElementKind::PipeLine) {
        return RoundPen(ToQt(line.colour), drawing_style::kPipeWidth);
    }
    if (line.kind == ElementKind::ArrowLine) {
        return RoundPen(ToQt(line.colour), drawing_style::kArrowWidth);
    }
    return {drawing_style::kLeader, 0};
}

/// Selected, to be removed, or being drawn.
bool IsMarked(const DrawnElement& pipe) {
    return pipe.pipe == 0 || pipe.colour == drawing_colour::kSelectedPipe ||
           pipe.colour == drawing_colour::kRemoved;
}

int LayerOf(const DrawnElement& element) {
    switch (element.kind) {
        case ElementKind::CellFill:
            return kFills;
        case ElementKind::PipeLine:
            return IsMarked(element) ? kMarkedPipes : kPipes;
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

QRectF LineBounds(const DrawnElement& line) {
    const double reach = drawing_style::kPipeWidth / 2 + kBlur;
    return QRectF(At(line.from), At(line.to)).normalized().adjusted(-reach, -reach, reach, reach);
}

QRectF MarkerAt(ScreenPoint centre) {
    const double size = drawing_style::kMarker;
    return {At(centre) - QPointF(size / 2, size / 2), QSizeF(size, size)};
}

/// How many elements at the end are the same.
std::size_t CommonTail(const std::vector<DrawnElement>& one,
                       const std::vector<DrawnElement>& other) {
    const auto ends = std::ranges::mismatch(one.rbegin(), one.rend(), other.rbegin(), other.rend());
    return static_cast<std::size_t>(ends.in1 - one.rbegin());
}

/// The places where two drawings differ.
std::vector<QRectF> Changes(const std::vector<DrawnElement>& before,
                            const std::vector<QRectF>& boundsBefore,
                            const std::vector<DrawnElement>& after,
                            const std::vector<QRectF>& boundsAfter) {
    const std::size_t tail = CommonTail(before, after);
    const std::size_t endBefore = before.size() - tail;
    const std::size_t endAfter = after.size() - tail;
    std::vector<QRectF> changes;
    for (std::size_t i = 0; i < std::max(endBefore, endAfter); ++i) {
        if (i < endBefore && i < endAfter && before[i] == after[i]) continue;
        if (i < endBefore) changes.push_back(boundsBefore[i]);
        if (i < endAfter) changes.push_back(boundsAfter[i]);
    }
    return changes;
}

const QFont& LabelFont() {
    static const QFont font = drawing_style::Font(drawing_style::kLabelHeight);
    return font;
}

}  // namespace

PlantItem::PlantItem(const Project& project, const std::filesystem::path& folder,
                     const QRectF& room)
    : project_(project), icons_(folder), room_(room) {
    setFlag(ItemUsesExtendedStyleOption);  // which tells what is exposed
}

void PlantItem::Show(DrawingList drawing) {
    if (texts_.size() > kMostTexts) texts_.clear();
    std::vector<QRectF> bounds;
    bounds.reserve(drawing.elements.size());
    for (const DrawnElement& element : drawing.elements) bounds.push_back(BoundsOf(element));
    const auto changes = Changes(shown_.elements, bounds_, drawing.elements, bounds);
    shown_ = std::move(drawing);
    bounds_ = std::move(bounds);
    if (changes.empty()) return;
    order_.resize(shown_.elements.size());
    std::iota(order_.begin(), order_.end(), 0);
    std::ranges::stable_sort(order_, {},
                             [&](std::size_t i) { return LayerOf(shown_.elements[i]); });
    if (changes.size() > kManyChanges) return update();
    // Not by the item's own update, which would paint all between two of them.
    for (const QRectF& change : changes) scene()->update(change);
}

void PlantItem::paint(QPainter* painter, const QStyleOptionGraphicsItem* option,
                      QWidget* /*widget*/) {
    for (const std::size_t i : order_) {
        if (bounds_[i].intersects(option->exposedRect)) Paint(*painter, shown_.elements[i]);
    }
}

const PlantItem::LabelText& PlantItem::TextOf(const std::string& text) {
    const auto [entry, isNew] = texts_.try_emplace(text);
    LabelText& label = entry->second;
    if (!isNew) return label;
    static const QFontMetricsF metrics(LabelFont());
    label.text.setText(ToQt(text));
    label.text.setTextFormat(Qt::PlainText);
    label.box = {metrics.horizontalAdvance(label.text.text()) + 2 * kLabelPadding,
                 metrics.height()};
    return label;
}

QRectF PlantItem::CellAt(ScreenPoint corner) const {
    return {At(corner), QSizeF(project_.Grid.CellWidth, project_.Grid.CellHeight)};
}

/// As near to its place as the whole label can be seen.
QRectF PlantItem::LabelBox(const DrawnElement& element) {
    const QSizeF size = TextOf(element.text).box;
    QPointF corner = At(element.from);
    if (element.kind == ElementKind::LeaderLabel) {
        corner = At(element.to);
        if (element.to.x < element.from.x) corner.rx() -= size.width();
        if (element.to.y < element.from.y) corner.ry() -= size.height();
    }
    return {std::max(std::min(corner.x(), room_.right() - size.width()), room_.left()),
            std::max(std::min(corner.y(), room_.bottom() - size.height()), room_.top()),
            size.width(), size.height()};
}

QRectF PlantItem::BoundsOf(const DrawnElement& element) {
    switch (element.kind) {
        case ElementKind::CellFill:
        case ElementKind::CellIcon:
            return CellAt(element.from).adjusted(-kBlur, -kBlur, kBlur, kBlur);
        case ElementKind::PointMarker:
            return MarkerAt(element.from).adjusted(-kBlur, -kBlur, kBlur, kBlur);
        case ElementKind::PipeLine:
        case ElementKind::ArrowLine:
        case ElementKind::LeaderLine:
            return LineBounds(element);
        case ElementKind::TextLabel:
        case ElementKind::LeaderLabel:
            break;
    }
    const QRectF box = LabelBox(element).adjusted(-kBlur, -kBlur, kBlur, kBlur);
    return element.kind == ElementKind::LeaderLabel ? box | LineBounds(element) : box;
}

void PlantItem::Paint(QPainter& painter, const DrawnElement& element) {
    painter.setRenderHint(QPainter::Antialiasing, element.kind != ElementKind::TextLabel);
    switch (element.kind) {
        case ElementKind::CellFill:
            return painter.fillRect(CellAt(element.from), ToQt(element.colour));
        case ElementKind::CellIcon:
            return icons_.Paint(
                painter,
                CellAt(element.from).adjusted(kIconInset, kIconInset, -kIconInset, -kIconInset),
                element.text);
        case ElementKind::PointMarker:
            painter.setPen(Qt::NoPen);
            painter.setBrush(Qt::black);
            return painter.drawEllipse(MarkerAt(element.from));
        case ElementKind::PipeLine:
        case ElementKind::ArrowLine:
        case ElementKind::LeaderLine:
            painter.setPen(PenOf(element));
            return painter.drawLine(At(element.from), At(element.to));
        case ElementKind::LeaderLabel:
            painter.setPen(PenOf(element));
            painter.drawLine(At(element.from), At(element.to));
            painter.setRenderHint(QPainter::Antialiasing, false);
            return PaintLabel(painter, element);
        case ElementKind::TextLabel:
            return PaintLabel(painter, element);
    }
}

void PlantItem::PaintLabel(QPainter& painter, const DrawnElement& element) {
    const QRectF box = LabelBox(element);
    painter.setPen(QPen(drawing_style::kLabelFrame, 0));
    painter.setBrush(ToQt(element.colour));
    painter.drawRect(box);
    painter.setPen(ToQt(InkOn(element.colour)));
    painter.setFont(LabelFont());
    painter.drawStaticText(box.topLeft() + QPointF(kLabelPadding, 0), TextOf(element.text).text);
}

}  // namespace idrova
