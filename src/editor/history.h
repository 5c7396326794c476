// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <deque>
#include <string>

#include "editor/edit_step.h"

namespace idrova {

/// The steps of drawing and panel that can be undone, at most `kMaxSteps`. They are found by
/// comparing the plan with what it was, so that no command has to tell what it does.
class EditHistory {
  public:
    static constexpr std::size_t kMaxSteps = 200;

    /// Forgets all steps: another network was put in place.
    void StartAnew(const Project& project, const Editor& editor);

    /// To be called after every change, when all is whole: what differs from the last call is a
    /// step. What is typed on into the same box belongs to the step before.
    void Note(const Project& project, const Editor& editor);

    /// The box was left: what is typed into it from now on is a step of its own.
    void EndTyping() { isTyping_ = false; }

    /// Takes the last step back, or does it again; drops what is begun. Nothing without a step.
    void Undo(Project& project, Editor& editor);
    void Redo(Project& project, Editor& editor);

    /// What the next of them is about, "insert pump"; empty when there is no step.
    std::string UndoName() const;
    std::string RedoName() const;

  private:
    void Add(EditStep step);

    Plan plan_;                   ///< as of the last call
    std::deque<EditStep> steps_;  ///< the last one done stands at `done_` - 1
    std::size_t done_ = 0;
    Plan beforeTyping_;  ///< the plan before the last step, while it may go on
    bool isTyping_ = false;
};

}  // namespace idrova
