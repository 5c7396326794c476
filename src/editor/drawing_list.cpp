// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/drawing_list.h"

namespace idrova {

void DrawingList::Grid(int column, int row) {
    firstColumn = column;
    firstRow = row;
    elements.clear();
}

void DrawingList::CellFill(ScreenPoint corner, Rgb colour) {
    elements.push_back({ElementKind::CellFill, corner, {}, 0, {}, colour});
}

void DrawingList::CellIcon(ScreenPoint corner, std::string_view file) {
    elements.push_back({ElementKind::CellIcon, corner, {}, 0, std::string(file), {}});
}

void DrawingList::PipeLine(int pipe, ScreenPoint from, ScreenPoint to, Rgb colour) {
    elements.push_back({ElementKind::PipeLine, from, to, pipe, {}, colour});
}

void DrawingList::PointMarker(ScreenPoint centre) {
    elements.push_back({ElementKind::PointMarker, centre, {}, 0, {}, {}});
}

void DrawingList::ArrowLine(ScreenPoint from, ScreenPoint to) {
    elements.push_back({ElementKind::ArrowLine, from, to, 0, {}, drawing_colour::kArrow});
}

void DrawingList::TextLabel(ScreenPoint corner, std::string_view text, Rgb background) {
    elements.push_back({ElementKind::TextLabel, corner, {}, 0, std::string(text), background});
}

void DrawingList::LeaderLine(ScreenPoint from, ScreenPoint to) {
    elements.push_back({ElementKind::LeaderLine, from, to, 0, {}, {}});
}

void DrawingList::LeaderLabel(ScreenPoint from, ScreenPoint to, std::string_view text,
                              Rgb background) {
    elements.push_back({ElementKind::LeaderLabel, from, to, 0, std::string(text), background});
}

}  // namespace idrova
