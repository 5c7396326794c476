// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/message_boxes.h"
#include "calc/options.h"

namespace idrova {

/// Makes the fluid that the options ask for the current one; a current one that they do not name
/// stays. Without a database, and without properties, none is current. False, told in a box, when
/// the database cannot be read or has no such fluid.
bool ChooseFluid(Settings& settings, const Options& options, MessageBoxes& boxes);

}  // namespace idrova
