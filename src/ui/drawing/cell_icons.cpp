// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/drawing/cell_icons.h"

#include <QPainter>
#include <algorithm>

#include "ui/kit/qt_text.h"

namespace idrova {

namespace {

/// Quarter turns from an arrow to the right; -1 for what is no arrow.
int TurnsOf(std::string_view file) {
    constexpr std::string_view arrows[] = {"arrt", "ardn", "arlt", "arup"};
    for (int turns = 0; turns < 4; ++turns) {
        if (file.find(arrows[turns]) != std::string_view::npos) return turns;
    }
    return -1;
}

/// An arrow for a pump, a valve's bow tie for a loss.
void PaintStandIn(QPainter& painter, const QRectF& place, std::string_view file) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::darkRed);
    painter.translate(place.center());
    painter.scale(place.width() / 8, place.height() / 8);
    const int turns = TurnsOf(file);
    painter.rotate(90 * std::max(turns, 0));
    if (turns < 0) {
        painter.drawPolygon(QPolygonF({{-3, -3}, {-3, 3}, {3, -3}, {3, 3}}));
    } else {
        painter.drawPolygon(QPolygonF({{-3, -3}, {3, 0}, {-3, 3}}));
    }
}

}  // namespace

const QIcon& CellIcons::Icon(const std::string& file) {
    const auto [entry, isNew] = icons_.try_emplace(file);
    if (isNew) {
        std::string path = file;
        std::ranges::replace(path, '\\', '/');
        entry->second = QIcon(PathToQt(folder_ / path));
        if (entry->second.pixmap(16).isNull()) entry->second = QIcon();
    }
    return entry->second;
}

void CellIcons::Paint(QPainter& painter, const QRectF& place, const std::string& file) {
    const QIcon& icon = Icon(file);
    painter.save();
    if (icon.isNull()) {
        PaintStandIn(painter, place, file);
    } else {
        // An icon chooses its picture by the size in pixels.
        const QRect pixels = painter.worldTransform().mapRect(place).toRect();
        painter.resetTransform();
        icon.paint(&painter, pixels);
    }
    painter.restore();
}

}  // namespace idrova
