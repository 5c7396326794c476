// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

#include "base/message_boxes.h"
#include "editor/pipe_ends.h"
#include "editor/pipe_panel.h"
#include "model/project.h"

namespace idrova {

/// The user's edits of the command panel. Each takes what a box holds after the change, writes the
/// number it begins with at once into the records of the panel's pipes, and leaves in `panel` what
/// all boxes hold then. Flow, pressures and direction are those of a single pipe: with several, and
/// without any, nothing happens. Numbers beyond a single are stored as the largest single.

/// `Option6`.
void ChooseFlow(Project& project, PipePanel& panel, bool known);

/// `Text12`; only while the flow is known. Fills the volume flow.
void TypeKgPerHour(Project& project, PipePanel& panel, std::string_view text);

/// `Text13`; only while the flow is known. Fills the mass flow. Without a fluid it is told in a
/// box, false: the text is dropped, nothing is stored and the focus belongs to `Text12`.
bool TypeCubicMetresPerHour(Project& project, PipePanel& panel, std::string_view text,
                            MessageBoxes& boxes);

/// `Text6`, `Text7`, `Text8`: m, mm, mm. A negative number becomes "0", and stays so while more of
/// it is typed, until the box is emptied or left.
void TypeLength(Project& project, PipePanel& panel, std::string_view text);
void TypeInnerSize(Project& project, PipePanel& panel, std::string_view text);
void TypeOuterSize(Project& project, PipePanel& panel, std::string_view text);

/// The sum of the loss coefficients of the pipe's own fittings.
void TypeLossSum(Project& project, PipePanel& panel, std::string_view text);

/// Adds to the loss sum of each of the pipes.
void AddLosses(Project& project, PipePanel& panel, double sum);

/// `Combo2`: a nominal size (1 .. 12); fills both diameters.
void ChoosePipeSize(Project& project, PipePanel& panel, int size);

/// `Text5`, `Text11`: m, rounded to whole ones; negative numbers as in the sizes.
void TypeHeight(Project& project, PipePanel& panel, PipeEnd end, std::string_view text);

/// The keyboard leaves a box: the heights show what is stored.
void LeaveBox(const Project& project, PipePanel& panel);

/// `Option1`, `Option2`.
void ChoosePressure(Project& project, PipePanel& panel, PipeEnd end, bool known);

/// `Text10`, `Text9`, in the pressure unit; only while the pressure is known.
void TypePressure(Project& project, PipePanel& panel, PipeEnd end, std::string_view text);

/// `Option3`, `Option4`: the end that a positive flow leaves. A given flow turns round with it; a
/// computed one stays what it is and changes its sign.
void ChooseDirection(Project& project, PipePanel& panel, PipeEnd end);

/// Writes the diameters of a nominal size (1 .. 12).
void SetNominalSize(PipeRec& pipe, int size);

}  // namespace idrova
