// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/message_boxes.h"
#include "hydraulics/compute_network.h"

namespace idrova {

/// False when the results shown are no solution, or when there are none.
bool IsTrustworthy(RunEnd end);

/// The outcome of a computation with all its notes, one to a line.
MessageBox OutcomeNotes(const Outcome& outcome);

}  // namespace idrova
