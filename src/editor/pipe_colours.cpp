// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/pipe_colours.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "base/number_text.h"

namespace idrova {
namespace {

/// Dark enough for thin lines on the cells; blue and orange stay apart for every eye.
constexpr std::array<Rgb, 5> kScale = {{{0x00, 0x38, 0x98},
                                        {0x2E, 0x7F, 0xC8},
                                        {0x8A, 0x4F, 0xA8},
                                        {0xD0, 0x62, 0x00},
                                        {0x8C, 0x10, 0x08}}};
constexpr std::size_t kMostBounds = kScale.size() - 1;

/// The multiples of `step` between two values.
std::vector<double> MultiplesBetween(double low, double high, double step) {
    std::vector<double> multiples;
    for (double i = std::floor(low / step) + 1; i * step < high; ++i) multiples.push_back(i * step);
    return multiples;
}

/// As many as the scale can take of 1, 2 or 5 times a power of ten.
std::vector<double> RoundBounds(double low, double high) {
    const double range = high - low;
    if (!(range > 1e-6 * std::max(std::abs(low), std::abs(high)))) return {};
    double power = std::pow(10, std::floor(std::log10(range / kMostBounds)));
    for (;; power *= 10) {
        for (const int digit : {1, 2, 5}) {
            auto bounds = MultiplesBetween(low, high, digit * power);
            if (bounds.size() <= kMostBounds) return bounds;
        }
    }
}

std::string UnitOf(const Settings& settings, ColourKind kind) {
    switch (kind) {
        case ColourKind::Velocities:
            return "Velocity, m/s";
        case ColourKind::Losses:
            return "Losses, Pa/m";
        case ColourKind::Pressures:
            return settings.PressureUnit == Unit::Bar ? "Pressure, bar" : "Pressure, mbar";
        case ColourKind::Flows:
            return "Flow rate, kg/h";
        case ColourKind::None:
            break;
    }
    return "";
}

std::string LabelWords(LabelKind kind) {
    switch (kind) {
        case LabelKind::Flows:
            return "Labels: flow rate, kg/h";
        case LabelKind::Velocities:
            return "Labels: velocity, m/s";
        case LabelKind::Losses:
            return "Labels: losses, Pa/m";
        case LabelKind::Sizes:
            return "Labels: inside diameter, length";
        case LabelKind::Numbers:
        case LabelKind::Pressures:
            break;
    }
    return "";
}

bool IsComputed(LabelKind kind) {
    return kind == LabelKind::Flows || kind == LabelKind::Velocities || kind == LabelKind::Losses;
}

}  // namespace

PipeColours::PipeColours(const Project& project, const Editor& editor)
    : settings_(project.settings), editor_(editor) {
    hasValues_ =
        editor.colours != ColourKind::None && !editor.resultsOld && !editor.computed.empty();
    if (!hasValues_) return;
    std::vector<double> values;
    for (const auto& [number, pipe] : editor.computed) values.push_back(ValueOf(pipe));
    const auto [least, most] = std::ranges::minmax(values);
    bounds_ = RoundBounds(least, most);
}

double PipeColours::ValueOf(const ComputedPipe& pipe) const {
    switch (editor_.colours) {
        case ColourKind::Velocities:
            return pipe.velocity;
        case ColourKind::Losses:
            return pipe.lossPerMetre;
        case ColourKind::Pressures:
            return pipe.pressure / settings_.PressureUnitFactor;
        case ColourKind::Flows:
        case ColourKind::None:
            break;
    }
    return std::abs(pipe.flow) * kSecondsPerHour;
}

Rgb PipeColours::Of(int pipe) const {
    if (editor_.colours == ColourKind::None) return drawing_colour::kPipe;
    const auto computed = editor_.computed.find(pipe);
    if (!hasValues_ || computed == editor_.computed.end()) return drawing_colour::kNoValue;
    const auto above = std::ranges::upper_bound(bounds_, ValueOf(computed->second));
    const auto step = static_cast<std::size_t>(above - bounds_.begin());
    return kScale[bounds_.empty() ? 0 : step * kMostBounds / bounds_.size()];
}

std::vector<ColourStep> PipeColours::Steps() const {
    if (!hasValues_) return {};
    if (bounds_.empty()) return {{"all alike", kScale[0]}};
    std::vector<ColourStep> steps = {{"below " + PlainText(bounds_.front()), kScale[0]}};
    for (std::size_t i = 1; i < bounds_.size(); ++i) {
        std::string text = PlainText(bounds_[i - 1]);
        text += " \u2013 ";
        text += PlainText(bounds_[i]);
        steps.push_back({text, kScale[i * kMostBounds / bounds_.size()]});
    }
    steps.push_back({"from " + PlainText(bounds_.back()), kScale.back()});
    return steps;
}

Legend LegendOf(const Project& project, const Editor& editor) {
    Legend legend{UnitOf(project.settings, editor.colours), PipeColours(project, editor).Steps(),
                  editor.DataShown ? LabelWords(editor.labels) : ""};
    std::string state;
    if (editor.resultsOld) state = ": changed since the computation";
    if (editor.computed.empty()) state = ": not computed yet";
    if (!legend.colours.empty()) legend.colours += state;
    if (editor.DataShown && IsComputed(editor.labels)) legend.labels += state;
    return legend;
}

}  // namespace idrova
