// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/history.h"

#include <utility>

#include "editor/step_name.h"
#include "model/pipe_sizes.h"

namespace idrova {
namespace {

/// Selecting a round pipe of nominal size completes its outside diameter: that is no step.
bool IsCompletion(const EditStep& step, Section section) {
    if (section != Section::Circular || !IsTyping(step) || step.pipes.size() != 1) return false;
    Plan::Pipe before = *step.pipes.front().before;
    const Plan::Pipe& after = *step.pipes.front().after;
    before.record.OuterSize = after.record.OuterSize;
    return before == after && NominalSizeOf(after.record.Diameter) != 0;
}

}  // namespace

void EditHistory::StartAnew(const Project& project, const Editor& editor) {
    *this = EditHistory();
    plan_ = PlanOf(project, editor);
}

void EditHistory::Note(const Project& project, const Editor& editor) {
    Plan plan = PlanOf(project, editor);
    EditStep step = StepBetween(plan_, plan);
    if (step.before != step.after) isTyping_ = false;
    if (!step.IsEmpty() && !IsCompletion(step, project.settings.SectionType)) {
        const bool goesOn = isTyping_ && IsTyping(step) && StepName(step) == UndoName();
        steps_.erase(steps_.begin() + static_cast<std::ptrdiff_t>(done_), steps_.end());
        if (goesOn) {
            step = StepBetween(beforeTyping_, plan);
            steps_.pop_back();
        } else {
            beforeTyping_ = plan_;
        }
        Add(std::move(step));
    }
    plan_ = std::move(plan);
}

/// What was typed and then typed back is no step.
void EditHistory::Add(EditStep step) {
    isTyping_ = !step.IsEmpty() && IsTyping(step);
    if (!step.IsEmpty()) steps_.push_back(std::move(step));
    if (steps_.size() > kMaxSteps) steps_.pop_front();
    done_ = steps_.size();
}

void EditHistory::Undo(Project& project, Editor& editor) {
    if (done_ == 0) return;
    AbortInsertion(editor);
    TakeBack(steps_[--done_], project, editor);
    isTyping_ = false;
    plan_ = PlanOf(project, editor);
}

void EditHistory::Redo(Project& project, Editor& editor) {
    if (done_ == steps_.size()) return;
    AbortInsertion(editor);
    DoAgain(steps_[done_++], project, editor);
    isTyping_ = false;
    plan_ = PlanOf(project, editor);
}

std::string EditHistory::UndoName() const {
    return done_ == 0 ? std::string() : StepName(steps_[done_ - 1]);
}

std::string EditHistory::RedoName() const {
    return done_ == steps_.size() ? std::string() : StepName(steps_[done_]);
}

}  // namespace idrova
