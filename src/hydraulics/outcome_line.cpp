// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <cmath>

#include "base/number_text.h"
#include "hydraulics/compute_network.h"
#include "hydraulics/run_notes.h"

namespace idrova {
namespace {

/// What keeps a run from settling: the worst pipe, else what its first note says.
std::string Unsettled(const Outcome& outcome) {
    if (outcome.worstPipe == 0) {
        return outcome.notes.empty() ? "" : ": " + outcome.notes.front().text;
    }
    return ": pipe " + GeneralText(outcome.worstPipe) + ", " + PercentText(outcome.worstResidual);
}

std::string NoteCount(int notes) {
    if (notes == 0) return "";
    return ", " + GeneralText(notes) + (notes == 1 ? " note" : " notes");
}

}  // namespace

int WarningCount(const Outcome& outcome) {
    return static_cast<int>(std::ranges::count(outcome.notes, NoteWeight::Warning, &Note::weight));
}

std::string OutcomeLine(const Outcome& outcome) {
    switch (outcome.end) {
        case RunEnd::Refused:
            return "Not computed";
        case RunEnd::Empty:
            return "Nothing to compute";
        case RunEnd::Stopped:
            return "Stopped";
        case RunEnd::Settled:
            return "Computed" + NoteCount(WarningCount(outcome));
        case RunEnd::Unsettled:
            return "Not settled" + Unsettled(outcome);
        case RunEnd::Singular:
            return "The equations have no single solution";
        case RunEnd::NotFinite:
            return "No finite solution";
    }
    return "";
}

std::string EffortText(const Outcome& outcome) {
    if (outcome.passes[0] + outcome.passes[1] == 0) return "";
    std::string text = GeneralText(outcome.passes[0]);
    if (outcome.passes[1] != 0) text += " + " + GeneralText(outcome.passes[1]);
    text += text == "1" ? " pass, " : " passes, ";
    return text + GeneralText(std::round(outcome.seconds * 1e4) / 10) + " ms";
}

}  // namespace idrova
