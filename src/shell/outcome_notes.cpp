// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/outcome_notes.h"

#include <string>

namespace idrova {

namespace {

/// False when the results shown are no solution, or when there are none.
bool IsTrustworthy(RunEnd end) {
    return end == RunEnd::Settled || end == RunEnd::Empty;
}

}  // namespace

OutcomeView ShowOutcome(const Outcome& outcome, ResultAge age) {
    OutcomeView view{OutcomeLine(outcome), EffortText(outcome)};
    if (!view.tip.empty()) view.tip += ". ";
    view.tip += "A click opens the list of problems";
    if (WarningCount(outcome) > 0) view.ground = OutcomeGround::Noted;
    if (!IsTrustworthy(outcome.end)) view.ground = OutcomeGround::Faulty;
    if (age == ResultAge::Current) return view;
    view.tip = view.text + ". " + view.tip;
    view.text = "Changed since the computation";
    view.ground = OutcomeGround::Old;
    return view;
}

}  // namespace idrova
