// SPDX-License-Identifier: GPL-3.0-or-later
#include "calc/variant_change.h"

#include <array>
#include <charconv>
#include <cmath>

#include "base/number_text.h"

namespace idrova {
namespace {

using Kind = VariantChange::Kind;

struct KnownChange {
    std::string_view what, quantity;
    Kind kind;
};
constexpr std::array<KnownChange, 4> kKnownChanges = {
    {{"pipe", "length_m", Kind::PipeLength},
     {"pipe", "diameter_m", Kind::PipeDiameter},
     {"pipe", "flow_kg_s", Kind::PipeFlow},
     {"point", "pressure_Pa", Kind::PointPressure}}};

/// Takes the text before the mark off `text`; all of it when there is no mark.
std::string_view Part(std::string_view& text, char mark) {
    const std::size_t end = text.find(mark);
    const std::string_view part = text.substr(0, end);
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    return part;
}

int NumberIn(std::string_view text) {
    int number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc() && end == text.data() + text.size() ? number : 0;
}

void ChangePipe(const VariantChange& change, PipeRec& pipe, bool& flowUnknown) {
    const float value = ToSingle(change.value);
    if (change.kind == Kind::PipeLength) pipe.Length = value;
    if (change.kind == Kind::PipeDiameter) pipe.Diameter = value;
    if (change.kind != Kind::PipeFlow) return;
    pipe.FlowRate = value;
    flowUnknown = false;
}

bool ChangeDrawing(const VariantChange& change, Project& project) {
    const int number = change.number;
    if (change.kind != Kind::PointPressure) {
        if (number > project.numtubo || !project.Pipes[number].IsDrawn()) return false;
        ChangePipe(change, project.Pipes[number], project.FlowUnknown[number]);
        return true;
    }
    if (number > project.npres || !project.Points[number].IsDrawn()) return false;
    project.Points[number].Pressure = ToSingle(change.value);
    project.PressureUnknown[number] = false;
    return true;
}

bool IsFilled(const TableRowRec& row) {
    return row.StartPoint != 0 && row.EndPoint != 0;
}

bool ChangeRow(const VariantChange& change, Project& project) {
    const int number = change.number + kFirstTableRow - 1;
    if (number > kLastTableRow || !IsFilled(project.TableRows[number])) return false;
    TableRowRec& row = project.TableRows[number];
    const float value = ToSingle(change.value);
    if (change.kind == Kind::PipeLength) row.RowLength = value;
    if (change.kind == Kind::PipeDiameter) row.RowDiameter = value;
    if (change.kind == Kind::PipeFlow) {
        row.RowFlowRate = value;
        row.FlowGiven = true;
    }
    return true;
}

/// In every row that names the point.
bool ChangePointInRows(const VariantChange& change, Project& project) {
    bool found = false;
    for (TableRowRec& row : project.TableRows) {
        if (!IsFilled(row)) continue;
        if (row.StartPoint == change.number) {
            row.StartPressure = ToSingle(change.value);
            found = row.P1Given = true;
        }
        if (row.EndPoint == change.number) {
            row.EndPressure = ToSingle(change.value);
            found = row.P2Given = true;
        }
    }
    return found;
}

}  // namespace

Result<VariantChange> ParseChange(std::string_view text) {
    const std::string whole(text);
    VariantChange change;
    change.text = std::string(Part(text, '='));
    std::string_view left = change.text;
    const std::string_view what = Part(left, ':');
    change.number = NumberIn(Part(left, ':'));
    const KnownChange* known = nullptr;
    for (const KnownChange& candidate : kKnownChanges) {
        if (candidate.what == what && candidate.quantity == left) known = &candidate;
    }
    const std::optional<double> value = ParseNumber(text);
    if (known == nullptr || change.number < 1 || !value) {
        return Failure{whole + " is not like pipe:12:diameter_m=0.0689"};
    }
    change.kind = known->kind;
    change.value = *value;
    const bool size = change.kind == Kind::PipeLength || change.kind == Kind::PipeDiameter;
    if (size && !(*value > 0)) return Failure{whole + " is not positive"};
    return change;
}

Status ApplyChange(const VariantChange& change, Project& project) {
    const bool point = change.kind == Kind::PointPressure;
    bool found = false;
    if (project.settings.Mode == WorkMode::Graphic) {
        found = ChangeDrawing(change, project);
    } else {
        found = point ? ChangePointInRows(change, project) : ChangeRow(change, project);
    }
    if (found) return Done{};
    return Failure{std::string("There is no ") + (point ? "point " : "pipe ") +
                   GeneralText(change.number)};
}

}  // namespace idrova
