// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace idrova {

class MDI;

/// Asks where to and in which form, and writes the results of the working mode, or its drawing,
/// there.
void ExportFromWindow(MDI& mdi);

}  // namespace idrova
