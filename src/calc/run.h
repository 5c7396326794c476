// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <iosfwd>

#include "calc/exit_status.h"
#include "calc/options.h"

namespace idrova {

/// Computes the projects of the options, one after the other: reports or JSON to `out` and to the
/// results file, messages and notes to `err`. The status is that of the worst: a file that cannot
/// be read or written, a refusal, a network that does not settle.
ExitStatus RunProjects(const Options& options, std::ostream& out, std::ostream& err);

}  // namespace idrova
