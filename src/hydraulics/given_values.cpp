// SPDX-License-Identifier: GPL-3.0-or-later
#include "hydraulics/given_values.h"

#include "base/number_text.h"

namespace idrova {
namespace {

bool TakesFlow(const NetworkPlan& plan, const WorkNetwork& work, int point) {
    return IsOpenEnd(plan, point) && work.WorkPressureUnknown[point];
}

}  // namespace

std::vector<Note> MissingValues(const NetworkPlan& plan, const WorkNetwork& work) {
    std::vector<Note> notes;
    for (const auto& [number, pipe] : DrawnPipes(work)) {
        if (!work.WorkFlowUnknown[number]) continue;
        for (const int point : {pipe.StartPoint, pipe.EndPoint}) {
            if (!TakesFlow(plan, work, point)) continue;
            notes.push_back({"Point " + GeneralText(point) +
                                 " is an open end: give its pressure or the flow of pipe " +
                                 GeneralText(number),
                             NoteOn::Point, point});
        }
    }
    return notes;
}

std::vector<Note> SurplusValues(const NetworkPlan& plan, const WorkNetwork& work) {
    std::vector<Note> notes;
    for (const auto& [number, point] : DrawnPoints(work)) {
        if (work.WorkPressureUnknown[number] || IsOpenEnd(plan, number)) continue;
        notes.push_back({"The pressure of point " + GeneralText(number) +
                             " is given, though it is no open end: make it unknown",
                         NoteOn::Point, number});
    }
    for (const auto& [number, pipe] : DrawnPipes(work)) {
        if (work.WorkFlowUnknown[number]) continue;
        if (TakesFlow(plan, work, pipe.StartPoint) || TakesFlow(plan, work, pipe.EndPoint)) {
            continue;
        }
        notes.push_back({"The flow of pipe " + GeneralText(number) +
                             " is given, though no end of it is open for one: make it or a "
                             "pressure unknown",
                         NoteOn::Pipe, number});
    }
    return notes;
}

}  // namespace idrova
