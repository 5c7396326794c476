// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "base/number_text.h"
#include "editor/drawing_surface.h"

namespace idrova {

/// Writes down what is drawn, one line of text for each element.
class RecordedSurface final : public DrawingSurface {
  public:
    void Grid(int firstColumn, int firstRow) override {
        drawn = {"grid from " + Pair({firstColumn, firstRow})};
    }
    void CellIcon(ScreenPoint corner, std::string_view file) override {
        Add(std::string(file), corner);
    }
    void PipeLine(int pipe, ScreenPoint from, ScreenPoint to, Rgb colour) override {
        const bool selected = colour == drawing_colour::kSelectedPipe;
        Add((selected ? "selected pipe " : "pipe ") + GeneralText(pipe), from, to);
    }
    void PointMarker(ScreenPoint centre) override { Add("point", centre); }
    void ArrowLine(ScreenPoint from, ScreenPoint to) override { Add("arrow", from, to); }
    void TextLabel(ScreenPoint corner, std::string_view text, Rgb background) override {
        Add(Text(text, background), corner);
    }
    void LeaderLine(ScreenPoint from, ScreenPoint to) override { Add("leader", from, to); }
    void LeaderLabel(ScreenPoint from, ScreenPoint to, std::string_view text,
                     Rgb background) override {
        Add(Text(text, background), from, to);
    }

    std::vector<std::string> drawn;

  private:
    static std::string Pair(ScreenPoint at) { return GeneralText(at.x) + "," + GeneralText(at.y); }
    static std::string Text(std::string_view text, Rgb background) {
        const char* const kind = background == drawing_colour::kKnown ? "known" : "unknown";
        return kind + (" '" + std::string(text) + "'");
    }
    void Add(const std::string& what, ScreenPoint at) { drawn.push_back(what + " " + Pair(at)); }
    void Add(const std::string& what, ScreenPoint from, ScreenPoint to) {
        drawn.push_back(what + " " + Pair(from) + " " + Pair(to));
    }
};

}  // namespace idrova
