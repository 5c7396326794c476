// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/limit_notes.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "base/number_text.h"
#include "results/network_results.h"

namespace idrova {
namespace {

constexpr std::string_view kPressureKey = "pressure_Pa";

std::string TwoDecimals(double value) {
    return PlainText(std::round(value * 100) / 100);
}

class NoteList {
  public:
    NoteList(const Limits& limits, Unit unit) : limits_(limits), unit_(unit) {}

    void Add(const PipeResult& pipe) {
        const std::string in = " in pipe " + GeneralText(pipe.number);
        const auto hold = [&](double value, const std::optional<double>& limit, const char* what,
                              const char* unit) {
            if (!IsAbove(std::abs(value), limit)) return;
            const std::string text = what + in + ": " + TwoDecimals(std::abs(value)) + unit +
                                     ", above the limit of " + PlainText(*limit) + unit;
            notes.push_back({text, NoteOn::Pipe, pipe.number});
        };
        hold(pipe.velocity, limits_.velocity, "Velocity", " m/s");
        hold(pipe.dropPerMetre, limits_.loss, "Losses", " Pa/m");
    }

    void Add(const PointResult& point) {
        if (!IsBeyond(limits_, point.pressure)) return;
        const bool above = IsAbove(point.pressure, limits_.highestPressure);
        const double limit = above ? *limits_.highestPressure : *limits_.lowestPressure;
        notes.push_back({"Pressure at point " + GeneralText(point.number) + ": " +
                             PressureText(point.pressure) + ", " + (above ? "above" : "below") +
                             " the limit of " + PressureText(limit),
                         NoteOn::Point, point.number});
    }

    std::vector<Note> notes;

  private:
    std::string PressureText(double pascal) const {
        if (unit_ == Unit::Bar)
            return PlainText(std::round(pascal / kPascalPerBar * 1e4) / 1e4) + " bar";
        return PlainText(std::round(pascal / kPascalPerMilliBar * 10) / 10) + " mbar";
    }

    const Limits& limits_;
    Unit unit_;
};

bool IsBeyond(const Limits& limits, std::string_view column, double value) {
    if (column == "velocity_m_s") return IsAbove(std::abs(value), limits.velocity);
    if (column == "friction_Pa_m") return IsAbove(std::abs(value), limits.loss);
    return column == kPressureKey && IsBeyond(limits, value);
}

}  // namespace

std::vector<Note> LimitNotes(const Limits& limits, const RunRecord& record) {
    if (!record.results || limits == Limits{}) return {};
    NoteList list(limits, record.settings.PressureUnit);
    for (const PipeResult& pipe : PipeResults(record.settings, *record.results)) list.Add(pipe);
    for (const PointResult& point : PointResults(record.settings, *record.results)) {
        list.Add(point);
    }
    return list.notes;
}

Outcome HeldAgainst(const Limits& limits, const RunRecord& record) {
    Outcome outcome = record.outcome;
    const std::vector<Note> notes = LimitNotes(limits, record);
    const auto remarks = std::ranges::find(outcome.notes, NoteWeight::Remark, &Note::weight);
    outcome.notes.insert(remarks, notes.begin(), notes.end());
    return outcome;
}

void MarkBeyond(const Limits& limits, ResultTable& table) {
    for (ResultRow& row : table.rows) {
        for (std::size_t i = 0; i < row.cells.size(); ++i) {
            const auto* value = std::get_if<double>(&row.cells[i]);
            const std::string_view key = table.columns[i].key;
            if (value == nullptr || !IsBeyond(limits, key, *value)) continue;
            row.beyond.push_back(i);
            if (key == kPressureKey) row.beyond.push_back(i + 1);  // once more in bar or mbar
        }
    }
}

}  // namespace idrova
