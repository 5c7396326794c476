// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

#include "base/message_boxes.h"
#include "model/project.h"

namespace idrova {

/// One value for every pipe of the drawing, as typed; the longest leading number counts. A zero is
/// asked about first and changes nothing unless the answer is Yes.

/// `text` in kg/h. The flow rates stay marked as to be computed.
void SetAllFlowRates(Project& project, std::string_view text, MessageBoxes& boxes);
/// `text` in m.
void SetAllLengths(Project& project, std::string_view text, MessageBoxes& boxes);
/// `text` in mm; the outside size stays.
void SetAllDiameters(Project& project, std::string_view text, MessageBoxes& boxes);

}  // namespace idrova
