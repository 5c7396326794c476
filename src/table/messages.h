// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/message_boxes.h"

namespace idrova {

constexpr FixedMessage kPressuresDiffer{
    "Different values of pressure have been defined for the same point", "Coherence check"};
constexpr FixedMessage kPointsLeaveGap{"The point numbers must run from 1 without gaps",
                                       "Coherence check"};

constexpr FixedMessage kCancelFlowRates{"Do you want to cancel all the flow rates ?",
                                        "Fast setting", BoxIcon::Critical, BoxButtons::YesNo};
constexpr FixedMessage kCancelLengths{"Do you want to cancel all the pipes length ?",
                                      "Fast setting", BoxIcon::Critical, BoxButtons::YesNo};
constexpr FixedMessage kCancelDiameters{"Do you want to cancel all the diameters ?", "Fast setting",
                                        BoxIcon::Critical, BoxButtons::YesNo};

}  // namespace idrova
