// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "editor/editor_state.h"
#include "model/project.h"
#include "physdata/pipe_settings.h"

namespace idrova {

/// One end of the pipe in the frames "Pressures" and "Directions".
struct PointPanel {
    std::string caption;      ///< "P" and the point's number
    std::string heightLabel;  ///< of the box `height`
    std::string height;       ///< `Text5`, `Text11`: whole metres
    bool known = false;       ///< `Option1`, `Option2`: "Value known", which opens `given`
    std::string given;        ///< `Text10`, `Text9`: in the pressure unit
    std::string computed;     ///< `Text1`, `Text4`: in the pressure unit
    bool reference = false;   ///< `Option3`, `Option4`: the flow is counted from here

    bool operator==(const PointPanel&) const = default;
};

/// What the command panel's boxes hold: texts as shown and as typed. Of several pipes it shows the
/// sizes, heights and loss sums in which they agree, and nothing else.
struct PipePanel {
    std::vector<int> pipes;          ///< the selected ones, the current first
    std::string caption;             ///< of `Frame3`
    bool flowKnown = false;          ///< `Option6`: "Value known", which opens the given boxes
    std::string kgPerHour;           ///< `Text12`
    std::string cubicMetresPerHour;  ///< `Text13`
    std::string computedKgPerHour;   ///< `Text2`
    std::string computedCubicMetresPerHour;  ///< `Text3`
    std::string length;                      ///< `Text6`, m
    int nominalSize = 0;                     ///< `Combo2`: list position + 1; 0 when none
    std::string innerSize;                   ///< `Text7`, mm
    std::string outerSize;                   ///< `Text8`, mm
    std::string lossSum;                     ///< of the pipe's own fittings
    PointPanel start, end;
    bool negative = false;       ///< the number being typed was negative: its rest is not taken
    std::string_view unitLabel;  ///< of the four pressure boxes
    SectionDisplay section;

    /// The pipe when it is a single one, else 0.
    int OnlyPipe() const { return pipes.size() == 1 ? pipes.front() : 0; }

    bool operator==(const PipePanel&) const = default;
};

/// The data of the selected pipes; empty boxes when there is none, and in the modes without a
/// drawing.
PipePanel ShowPipeData(const Project& project, const Editor& editor);

/// The flow frame alone: flow rate of the panel's only pipe as given or computed.
void ShowFlow(const Project& project, PipePanel& panel);

/// What is computed, from `now`; what the boxes were given stays as it was typed.
void TakeComputed(const PipePanel& now, PipePanel& panel);

/// The box of the loss sum alone.
void ShowLossSum(const Project& project, PipePanel& panel);

/// The boxes of the heights alone.
void ShowHeights(const Project& project, PipePanel& panel);

/// A point's pressure as given or computed.
void ShowPressure(const Project& project, int point, PointPanel& panel);

/// Flow in m3/h of a flow in kg/h; empty when no fluid is chosen.
std::string CubicMetresText(const Project& project, double kgPerHour);

/// `value` in a unit that is `factor` times smaller, free of the noise of single precision.
std::string ScaledText(float value, double factor);

}  // namespace idrova
