// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "editor/drawing_surface.h"
#include "editor/editor_state.h"
#include "model/project.h"

namespace idrova {

/// One step of a scale: the values that it holds, in words, and the colour of their pipes.
struct ColourStep {
    std::string text;
    Rgb colour;
    bool operator==(const ColourStep&) const = default;
};

/// The colours of the pipes by what was computed: a few steps with round bounds, told apart by
/// everybody, from blue for the least to red for the most. A pipe without a value, and every pipe
/// when the plant has changed since, is grey.
class PipeColours {
  public:
    PipeColours(const Project& project, const Editor& editor);

    Rgb Of(int pipe) const;
    /// Those between the least and the largest value; none when there is nothing to colour.
    std::vector<ColourStep> Steps() const;

  private:
    double ValueOf(const ComputedPipe& pipe) const;

    const Settings& settings_;
    const Editor& editor_;
    bool hasValues_ = false;
    std::vector<double> bounds_;  ///< between the steps, ascending, in the unit that is shown
};

/// What explains the drawing: what colours and labels show, and their units.
struct Legend {
    std::string colours;  ///< "Velocity, m/s"; empty without colours
    std::vector<ColourStep> steps;
    std::string labels;  ///< "Labels: velocity, m/s"; empty for those that need no words
    bool operator==(const Legend&) const = default;
};

Legend LegendOf(const Project& project, const Editor& editor);

}  // namespace idrova
