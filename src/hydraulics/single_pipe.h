// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "hydraulics/work_network.h"

namespace idrova {

/// The five quantities of the single-pipe window, in the order of its "Unknown" options.
enum class PipeQuantity { PressureAt1, PressureAt2, Length, FlowRate, Diameter };
constexpr int kPipeQuantities = 5;

enum class FlowDirection { From1To2 = 1, From2To1 = 2 };

/// One straight, level pipe between the points 1 and 2. Always round, whatever section the project
/// has chosen for its network: only a diameter is asked for.
struct SinglePipe {
    double pressure1 = 0;  ///< bar
    double pressure2 = 0;  ///< bar
    double length = 0;     ///< m
    double flowRate = 0;   ///< kg/s, positive along `direction`
    double diameter = 0;   ///< inside, m
    double lossSum = 0;    ///< of the loss coefficients of its own fittings
    FlowDirection direction = FlowDirection::From1To2;
    PipeQuantity unknown = PipeQuantity::FlowRate;
};

/// A text to write into a quantity's box.
struct BoxText {
    PipeQuantity box = PipeQuantity::FlowRate;
    std::string text;
    bool operator==(const BoxText&) const = default;
};

/// Takes what a box holds. True when the pipe has to be computed again: always but for the unknown.
bool TypeQuantity(SinglePipe& pipe, PipeQuantity quantity, std::string_view text);

/// The box text after one step of an arrow button (`steps` 1 or -1): 1 m, 0.1 bar or 100 kg/h. The
/// diameter has no arrows.
std::string SteppedText(const SinglePipe& pipe, PipeQuantity quantity, int steps);

/// The pipe as a working network of one pipe and two points.
void BuildSinglePipeNetwork(const SinglePipe& pipe, WorkNetwork& work);

/// False while the diameter is 0, or the length is 0 and known: nothing is computed then.
bool IsComplete(const SinglePipe& pipe);

/// The computed text of the unknown; nothing when that is the length or the diameter.
std::optional<BoxText> ComputedText(const SinglePipe& pipe, const WorkNetwork& work);

/// What the window shows of the flow direction: the arrow and whether it may be turned by hand.
struct DirectionView {
    bool mayTurn = false;
    bool showsArrow = false;
    FlowDirection direction = FlowDirection::From1To2;
    bool operator==(const DirectionView&) const = default;
};

/// While both pressures are known the direction follows them (and none is shown when they are
/// equal); else it is the user's.
DirectionView FollowPressures(SinglePipe& pipe);

void TurnDirection(SinglePipe& pipe);

}  // namespace idrova
