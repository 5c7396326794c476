// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace idrova {

/// How often the program has called operator new so far.
long Allocations();

}  // namespace idrova
