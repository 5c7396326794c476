// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string_view>

#include "model/grid.h"

namespace idrova {

struct Rgb {
    std::uint8_t red = 0, green = 0, blue = 0;
    bool operator==(const Rgb&) const = default;
};

namespace drawing_colour {
constexpr Rgb kCell{0xE0, 0xE0, 0xE0};
constexpr Rgb kPipe{0, 0, 0x80};
constexpr Rgb kNoValue{0x82, 0x82, 0x82};  ///< a pipe that has none to be coloured by
constexpr Rgb kSelectedPipe{0xFF, 0, 0xFF};
constexpr Rgb kRemoved{0xFF, 0x40, 0x40};
constexpr Rgb kBegunPipe{0x50, 0x70, 0xC0};
constexpr Rgb kRefused{0xD0, 0, 0};
constexpr Rgb kArrow = kPipe;
constexpr Rgb kKnown{0xFF, 0xFF, 0xFF};
constexpr Rgb kUnknown{0xFF, 0x80, 0x80};
constexpr Rgb kBeyondLimit{0xB8, 0, 0};  ///< under white letters
constexpr Rgb kOld{0xB8, 0xB8, 0xB8};    ///< computed, of a plant that has changed since
}  // namespace drawing_colour

/// The letters of a label on this ground.
constexpr Rgb InkOn(Rgb ground) {
    return ground == drawing_colour::kBeyondLimit ? Rgb{0xFF, 0xFF, 0xFF} : Rgb{};
}

/// What the plant is drawn with. Positions are screen units, 15 to a pixel at scale 1, as shown:
/// already scrolled and cut to the grid.
class DrawingSurface {
  public:
    virtual ~DrawingSurface() = default;

    /// Starts a new drawing: the empty cells, and the headers that count from these numbers.
    virtual void Grid(int firstColumn, int firstRow) = 0;
    /// Marks a cell that the user is asked about; nothing on paper.
    virtual void CellFill(ScreenPoint /*corner*/, Rgb /*colour*/) {}
    /// `file` is the icon's name relative to the program folder; `corner` the cell's top left.
    virtual void CellIcon(ScreenPoint corner, std::string_view file) = 0;
    /// Pipe 0 is one that is being drawn.
    virtual void PipeLine(int pipe, ScreenPoint from, ScreenPoint to, Rgb colour) = 0;
    virtual void PointMarker(ScreenPoint centre) = 0;
    virtual void ArrowLine(ScreenPoint from, ScreenPoint to) = 0;
    virtual void TextLabel(ScreenPoint corner, std::string_view text, Rgb background) = 0;
    /// A thin line from an element to a label that stands away from it.
    virtual void LeaderLine(ScreenPoint from, ScreenPoint to) = 0;
    /// The same with the label, whose nearest corner is `to`.
    virtual void LeaderLabel(ScreenPoint from, ScreenPoint to, std::string_view text,
                             Rgb background) = 0;

  protected:
    DrawingSurface() = default;
    DrawingSurface(const DrawingSurface&) = default;
    DrawingSurface& operator=(const DrawingSurface&) = default;
};

}  // namespace idrova
