// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace idrova {

class MDI;

/// Computation and flow directions.
void AttachRunCommands(MDI& mdi);

}  // namespace idrova
