// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/step_name.h"

#include <algorithm>
#include <string_view>

#include "base/number_text.h"

namespace idrova {
namespace {

bool IsDrawn(const std::optional<Plan::Pipe>& pipe) {
    return pipe && pipe->record.IsDrawn();
}

bool IsPlaced(const std::optional<CellRec>& cell) {
    return cell && cell->Placed;
}

std::string_view KindOf(const CellRec& cell) {
    return cell.Kind == CellKind::Pump ? "pump" : "loss";
}

/// What happened to the first component that appeared, went or changed; empty when none did.
std::string ComponentName(const EditStep& step) {
    for (const auto& [cell, before, after] : step.components) {
        if (IsPlaced(after) && !IsPlaced(before)) return "insert " + std::string(KindOf(*after));
    }
    for (const auto& [cell, before, after] : step.components) {
        if (!IsPlaced(before)) continue;
        if (!IsPlaced(after)) return "delete " + std::string(KindOf(*before));
        const bool turned = before->Name == after->Name && before->Direction != after->Direction;
        return (turned ? "turn " : "replace ") + std::string(KindOf(*before));
    }
    return {};
}

/// Which of a pipe's values differ, the first in the order of the panel.
std::string_view ValueName(const Plan::Pipe& before, const Plan::Pipe& after) {
    const PipeRec& was = before.record;
    const PipeRec& is = after.record;
    if (before.unknown != after.unknown) return "flow rate";
    if (was.FlowFromPoint != is.FlowFromPoint) return "direction";
    if (was.FlowRate != is.FlowRate) return "flow rate";
    if (was.Length != is.Length) return "length";
    if (was.Diameter != is.Diameter || was.OuterSize != is.OuterSize) return "diameter";
    if (was.LossSum != is.LossSum) return "fittings";
    return "heights";
}

/// How many pipes are selected where the step changed those and nothing else; 0 elsewhere.
int SelectedTogether(const EditStep& step) {
    const Plan::Selection& selection = step.after;
    const bool all = std::ranges::all_of(step.pipes, [&](const auto& change) {
        return change.number == selection.pipe ||
               std::ranges::binary_search(selection.others, change.number);
    });
    const bool several = !selection.others.empty() && step.before == selection;
    if (!several || !all || !step.points.empty()) return 0;
    return 1 + static_cast<int>(selection.others.size());
}

std::string ValuesName(const EditStep& step) {
    if (step.pipes.empty() && step.points.empty()) return "change";
    if (step.pipes.empty()) return "pressure of P" + GeneralText(step.points.front().number);
    const Change<Plan::Pipe>& first = step.pipes.front();
    if (!first.before || !first.after) return "change";  // a slot without a pipe came or went
    const std::string value(ValueName(*first.before, *first.after));
    const int count = std::max(static_cast<int>(step.pipes.size()), SelectedTogether(step));
    if (count == 1) return value + " of pipe " + GeneralText(first.number);
    return value + " of " + GeneralText(count) + " pipes";
}

bool IsPipeInserted(const EditStep& step) {
    return std::ranges::any_of(step.pipes, [](const auto& change) {
        return IsDrawn(change.after) && !IsDrawn(change.before);
    });
}

bool IsPipeDeleted(const EditStep& step) {
    return std::ranges::any_of(step.pipes, [](const auto& change) {
        return IsDrawn(change.before) && !IsDrawn(change.after);
    });
}

}  // namespace

std::string StepName(const EditStep& step) {
    const bool inserted = IsPipeInserted(step);
    if (IsPipeDeleted(step) && !inserted) return "delete pipe";
    std::string component = ComponentName(step);
    if (!component.empty()) return component;
    return inserted ? "insert pipe" : ValuesName(step);
}

bool IsTyping(const EditStep& step) {
    const bool values = step.components.empty() && step.nodes.empty() && !IsPipeInserted(step);
    // A slot without a pipe may come and go, too.
    const bool lasts = std::ranges::all_of(
        step.pipes, [](const auto& change) { return change.before && change.after; });
    const bool together = step.pipes.size() + step.points.size() == 1 || SelectedTogether(step) > 1;
    return values && lasts && together && !IsPipeDeleted(step);
}

}  // namespace idrova
