// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

#include "base/message_boxes.h"

namespace idrova {

constexpr FixedMessage kTooManyPipes{"Max number of pipes reached", "Pipes insertion",
                                     BoxIcon::Information};
constexpr FixedMessage kTooManyPoints{"Max number of points reached", "Pipes insertion",
                                      BoxIcon::Information};
constexpr FixedMessage kCellOccupied{"The cell is occupied by a component", "Pipes insertion",
                                     BoxIcon::Information};
constexpr FixedMessage kLengthZero{"Length 0", "Pipe length", BoxIcon::Critical};
constexpr FixedMessage kNotOrthogonal{"Only orthogonsl paths", "Pipe", BoxIcon::Critical};

constexpr FixedMessage kSelectComponent{"Select a component", "Components insertion",
                                        BoxIcon::Information};
constexpr FixedMessage kPumpWithoutCurve{"The pump has no curve: its flow rates are equal",
                                         "Component", BoxIcon::Information};
constexpr FixedMessage kNotInPipe{"The component must be inserted in a pipe", "Component",
                                  BoxIcon::Information};
constexpr FixedMessage kOnExtreme{"The component can not be positioned on an extreme",
                                  "Insertion of a component", BoxIcon::Information};

constexpr FixedMessage kAskDeleteComponent{"Do you want to delete the component ?",
                                           "Component deleting", BoxIcon::Question,
                                           BoxButtons::OkCancel};
/// Asks whether to put the chosen component in the place of the selected one.
MessageBox AskReplace(std::string_view selected, std::string_view chosen);
/// Asks whether to delete the pipe of this number.
MessageBox AskDeletePipe(int pipe);

constexpr FixedMessage kFluidForVolumeFlow{"To insert the volumetric flow rate select a fluid",
                                           "Select a fluid", BoxIcon::Information};
constexpr FixedMessage kNothingFound{"There is no drawn pipe or point of this number", "Find",
                                     BoxIcon::Information};
constexpr FixedMessage kFixedGridDimension{"Function not available yet", "Grid dimension",
                                           BoxIcon::Information};

}  // namespace idrova
