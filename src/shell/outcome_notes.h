// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "hydraulics/compute_network.h"

namespace idrova {

/// The ground that the status bar gives an outcome.
enum class OutcomeGround { Plain, Noted, Faulty, Old };

/// Whether results still belong to what they were computed from.
enum class ResultAge { Current, OutOfDate };

/// What the status bar shows of an outcome.
struct OutcomeView {
    std::string text;
    std::string tip;
    OutcomeGround ground = OutcomeGround::Plain;
};

OutcomeView ShowOutcome(const Outcome& outcome, ResultAge age);

}  // namespace idrova
