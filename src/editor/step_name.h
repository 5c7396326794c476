// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "editor/edit_step.h"

namespace idrova {

/// What the step did, as the menu names it: "insert pump", "length of pipe 7".
std::string StepName(const EditStep& step);

/// Whether the step is of the kind that typing goes on with: values of one pipe or point, or of
/// pipes that are selected together.
bool IsTyping(const EditStep& step);

}  // namespace idrova
