// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/fast_settings.h"

#include <algorithm>
#include <span>

#include "base/number_text.h"
#include "table/messages.h"

namespace idrova {
namespace {

std::span<PipeRec> PipesInUse(Project& project) {
    return std::span(project.Pipes).subspan(1, project.numtubo);
}

bool Confirmed(double number, const FixedMessage& question, MessageBoxes& boxes) {
    return number != 0 || boxes.Show(question) == Answer::Yes;
}

}  // namespace

void SetAllFlowRates(Project& project, std::string_view text, MessageBoxes& boxes) {
    const double number = ReadNumber(text);
    if (!Confirmed(number, kCancelFlowRates, boxes)) return;
    for (PipeRec& pipe : PipesInUse(project)) {
        pipe.FlowRate = ToSingle(number / kSecondsPerHour);
    }
    std::fill_n(project.FlowUnknown.begin() + 1, project.numtubo, true);
}

void SetAllLengths(Project& project, std::string_view text, MessageBoxes& boxes) {
    const double number = ReadNumber(text);
    if (!Confirmed(number, kCancelLengths, boxes)) return;
    for (PipeRec& pipe : PipesInUse(project)) pipe.Length = ToSingle(number);
}

void SetAllDiameters(Project& project, std::string_view text, MessageBoxes& boxes) {
    const double number = ReadNumber(text);
    if (!Confirmed(number, kCancelDiameters, boxes)) return;
    for (PipeRec& pipe : PipesInUse(project)) {
        pipe.Diameter = ToSingle(number / kMillimetresPerMetre);
    }
}

}  // namespace idrova
