// SPDX-License-Identifier: GPL-3.0-or-later
#include "hydraulics/problems.h"

#include <algorithm>
#include <string>

#include "base/number_text.h"
#include "hydraulics/given_values.h"
#include "hydraulics/messages.h"
#include "hydraulics/network_plan.h"
#include "hydraulics/run_checks.h"
#include "hydraulics/run_notes.h"

namespace idrova {
namespace {

class ProblemList {
  public:
    ProblemList(const Settings& settings, const WorkNetwork& work)
        : settings_(settings), work_(work), plan_(PlanNetwork(work)) {}

    std::vector<Note> All() {
        if (const auto refusal = CheckFluid(settings_)) AddNetwork(*refusal);
        AddUnsizedPipes();
        AddLonePoints();
        AddUnjoinedComponents();
        if (const auto refusal = CheckCounts(plan_)) AddCounts(*refusal);
        if (notes_.empty()) AddIncoherentPipes();
        return notes_;
    }

  private:
    void Add(NoteOn on, int number, std::string text) {
        notes_.push_back({std::move(text), on, number});
    }

    void Add(const std::vector<Note>& notes) {
        notes_.insert(notes_.end(), notes.begin(), notes.end());
    }

    void AddNetwork(const Refusal& refusal) {
        std::string text = RefusalBox(refusal).text;
        std::ranges::replace(text, kLineBreak, ' ');
        Add(NoteOn::Network, 0, text);
    }

    void AddUnsizedPipes() {
        const bool rectangular = settings_.SectionType == Section::Rectangular;
        for (const auto& [number, pipe] : DrawnPipes(work_)) {
            const std::string name = "Pipe " + GeneralText(number);
            if (!(pipe.Length > 0)) Add(NoteOn::Pipe, number, name + " has no length");
            if (!(pipe.Diameter > 0)) {
                Add(NoteOn::Pipe, number,
                    name + (rectangular ? " has no side a" : " has no diameter"));
            }
            if (rectangular && !(pipe.OuterSize > 0)) {
                Add(NoteOn::Pipe, number, name + " has no side b");
            }
        }
    }

    void AddLonePoints() {
        for (const auto& [number, point] : DrawnPoints(work_)) {
            if (plan_.pipesAtPoint[number] != 0 || !work_.WorkPressureUnknown[number]) continue;
            Add(NoteOn::Point, number, "Point " + GeneralText(number) + " has no pipe");
        }
    }

    void AddUnjoinedComponents() {
        for (const Component& component : plan_.components) {
            if (component.high != 0) continue;
            notes_.push_back(NoteOnCell(work_, component.cell, "The component",
                                        " does not stand between two pipes"));
        }
    }

    void AddCounts(const Refusal& refusal) {
        if (refusal.kind == RefusalKind::TooFewTerms) Add(MissingValues(plan_, work_));
        if (refusal.kind == RefusalKind::TooManyTerms) Add(SurplusValues(plan_, work_));
        if (notes_.empty()) AddNetwork(refusal);
    }

    void AddIncoherentPipes() {
        const auto refusal = CheckCoherence(settings_, work_);
        if (!refusal) return;
        for (const int pipe : refusal->pipes) {
            Add(NoteOn::Pipe, pipe,
                "The flow of pipe " + GeneralText(pipe) +
                    " does not fit the pressures of its ends: make one of the three unknown");
        }
    }

    const Settings& settings_;
    const WorkNetwork& work_;
    const NetworkPlan plan_;
    std::vector<Note> notes_;
};

}  // namespace

std::vector<Note> ProblemsOf(const Settings& settings, const WorkNetwork& work) {
    return ProblemList(settings, work).All();
}

}  // namespace idrova
