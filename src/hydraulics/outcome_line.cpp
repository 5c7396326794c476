// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/number_text.h"
#include "hydraulics/compute_network.h"
#include "hydraulics/run_results.h"

namespace idrova {
namespace {

std::string Passes(const Outcome& outcome) {
    std::string text = GeneralText(outcome.passes[0]);
    if (outcome.passes[1] != 0) text += " + " + GeneralText(outcome.passes[1]);
    return text + (text == "1" ? " pass" : " passes");
}

std::string WorstPipe(const Outcome& outcome) {
    if (outcome.worstPipe == 0) return "";
    return ": pipe " + GeneralText(outcome.worstPipe) + ", " + PercentText(outcome.worstResidual);
}

}  // namespace

std::string OutcomeLine(const Outcome& outcome) {
    switch (outcome.end) {
        case RunEnd::Refused:
            return "Not computed";
        case RunEnd::Empty:
            return "Nothing to compute";
        case RunEnd::Stopped:
            return "Stopped after " + Passes(outcome);
        case RunEnd::Settled:
            return "Computed in " + Passes(outcome);
        case RunEnd::Unsettled:
            return "Not settled after " + Passes(outcome) + WorstPipe(outcome);
        case RunEnd::Singular:
            return "The equations have no single solution (" + Passes(outcome) + ")";
        case RunEnd::NotFinite:
            return "No finite solution after " + Passes(outcome);
    }
    return "";
}

}  // namespace idrova
