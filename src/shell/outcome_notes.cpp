// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/outcome_notes.h"

#include <string>

namespace idrova {

bool IsTrustworthy(RunEnd end) {
    return end == RunEnd::Settled || end == RunEnd::Empty;
}

MessageBox OutcomeNotes(const Outcome& outcome) {
    std::string text = OutcomeLine(outcome);
    for (const std::string& note : outcome.notes) text += "\n" + note;
    return {text, "Computation",
            IsTrustworthy(outcome.end) ? BoxIcon::Information : BoxIcon::Exclamation};
}

}  // namespace idrova
