// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/svg_drawing.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

#include "base/markup_text.h"
#include "base/number_text.h"
#include "base/text_encoding.h"
#include "editor/drawing_surface.h"
#include "editor/plant_drawing.h"

namespace idrova {
namespace {

constexpr double kUnitsPerPixel = 15;

std::string ColourText(Rgb colour) {
    constexpr std::string_view digits = "0123456789abcdef";
    std::string text = "#";
    for (const unsigned part : {colour.red, colour.green, colour.blue}) {
        text += digits[part / 16];
        text += digits[part % 16];
    }
    return text;
}

std::string Attribute(std::string_view name, double value) {
    return " " + std::string(name) + "=\"" + PlainText(value) + "\"";
}

std::string Attribute(std::string_view name, std::string_view value) {
    return " " + std::string(name) + "=\"" + std::string(value) + "\"";
}

/// Degrees from the delivery to the right, clockwise; nothing for the icon of a loss.
std::optional<double> PumpTurn(std::string_view file) {
    constexpr std::array<std::pair<std::string_view, double>, 4> turns = {
        {{"arrt", 0}, {"ardn", 90}, {"arlt", 180}, {"arup", 270}}};
    for (const auto& [name, degrees] : turns) {
        if (file.find(name) != std::string_view::npos) return degrees;
    }
    return std::nullopt;
}

class SvgSurface final : public DrawingSurface {
  public:
    explicit SvgSurface(int cell) : cell_(cell) {}

    void Grid(int /*firstColumn*/, int /*firstRow*/) override { body_.clear(); }

    void CellIcon(ScreenPoint corner, std::string_view file) override {
        const std::optional<double> turn = PumpTurn(file);
        Include(corner);
        Include({corner.x + cell_, corner.y + cell_});
        body_ += "<g transform=\"translate(" + PlainText(corner.x + cell_ / 2.0) + " " +
                 PlainText(corner.y + cell_ / 2.0) + ") rotate(" + PlainText(turn.value_or(0)) +
                 ") scale(" + PlainText(cell_ / 2.0) + ")\" stroke-width=\"0.12\">";
        // A pump is a circle that points to its delivery, a loss a valve.
        body_ += turn ? R"(<circle r="0.85" fill="white"/><path d="M-0.4 -0.74L0.85 0L-0.4 0.74"/>)"
                      : R"(<path d="M-0.85 -0.6L0.85 0.6V-0.6L-0.85 0.6Z" fill="white"/>)";
        body_ += "</g>\n";
    }

    void PipeLine(int pipe, ScreenPoint from, ScreenPoint to, Rgb colour) override {
        Line(from, to, Attribute("stroke", ColourText(colour)) + Attribute("stroke-width", 40),
             "<title>pipe " + GeneralText(pipe) + "</title>");
    }

    void PointMarker(ScreenPoint centre) override {
        Include(centre);
        body_ += "<circle" + Attribute("cx", centre.x) + Attribute("cy", centre.y) +
                 Attribute("r", cell_ / 6.0) + " fill=\"white\"/>\n";
    }

    void ArrowLine(ScreenPoint from, ScreenPoint to) override { Line(from, to, ""); }

    void TextLabel(ScreenPoint corner, std::string_view text, Rgb background) override {
        const int width = static_cast<int>(Utf8Length(text)) * cell_ * 2 / 5;
        const int height = cell_ * 2 / 3;
        Include(corner);
        Include({corner.x + width, corner.y + height});
        body_ += "<rect" + Attribute("x", corner.x) + Attribute("y", corner.y) +
                 Attribute("width", width) + Attribute("height", height) +
                 Attribute("fill", ColourText(background)) + " stroke=\"none\"/>";
        body_ += "<text" + Attribute("x", corner.x + width / 2.0) +
                 Attribute("y", corner.y + height * 0.78) +
                 (InkOn(background) == Rgb{}
                      ? ""
                      : Attribute("style", "fill:" + ColourText(InkOn(background)))) +
                 ">" + MarkupText(text) + "</text>\n";
    }

    void LeaderLine(ScreenPoint from, ScreenPoint to) override {
        Line(from, to, Attribute("stroke-width", 8));
    }

    void LeaderLabel(ScreenPoint from, ScreenPoint to, std::string_view text,
                     Rgb background) override {
        LeaderLine(from, to);
        TextLabel(to, text, background);
    }

    std::string Text() const {
        const double left = left_ - cell_;
        const double top = top_ - cell_;
        const double width = std::max(right_ - left_, 0) + 2.0 * cell_;
        const double height = std::max(bottom_ - top_, 0) + 2.0 * cell_;
        const std::string box = PlainText(left) + " " + PlainText(top) + " " + PlainText(width) +
                                " " + PlainText(height);
        const std::string ink = ColourText(drawing_colour::kPipe);
        return "<svg xmlns=\"http://www.w3.org/2000/svg\"" +
               Attribute("width", width / kUnitsPerPixel) +
               Attribute("height", height / kUnitsPerPixel) + Attribute("viewBox", box) + ">\n<g" +
               Attribute("stroke", ink) + " stroke-width=\"20\" fill=\"none\">\n" +
               "<style>text{font-family:monospace;font-size:" + PlainText(cell_ * 0.58) +
               "px;text-anchor:middle;fill:black;stroke:none}</style>\n" + body_ + "</g>\n</svg>\n";
    }

  private:
    void Line(ScreenPoint from, ScreenPoint to, const std::string& attributes,
              const std::string& content = "") {
        Include(from);
        Include(to);
        body_ += "<line" + Attribute("x1", from.x) + Attribute("y1", from.y) +
                 Attribute("x2", to.x) + Attribute("y2", to.y) + attributes + ">" + content +
                 "</line>\n";
    }

    void Include(ScreenPoint at) {
        left_ = std::min(left_, at.x);
        right_ = std::max(right_, at.x);
        top_ = std::min(top_, at.y);
        bottom_ = std::max(bottom_, at.y);
    }

    int cell_;
    int left_ = 1 << 20, right_ = 0, top_ = 1 << 20, bottom_ = 0;
    std::string body_;
};

}  // namespace

std::string SvgDrawing(const Project& project, Editor editor) {
    editor.ScrX = editor.ScrY = 1;
    editor.state = InsertState::FirstPoint;
    SvgSurface surface(project.Grid.CellWidth);
    DrawPlantOnPaper(project, editor, surface);
    return surface.Text();
}

}  // namespace idrova
