// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <iosfwd>

#include "calc/exit_status.h"
#include "calc/options.h"

namespace idrova {

/// Computes the project of the options: report or JSON to `out` and to the results file, messages
/// and notes to `err`.
ExitStatus RunProject(const Options& options, std::ostream& out, std::ostream& err);

}  // namespace idrova
