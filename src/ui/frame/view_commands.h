// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace idrova {

class MDI;
struct Program;

void AttachViewCommands(MDI& mdi);

/// Hands the drawing what it shows of the last run, and the menu what the drawing shows.
void ShowView(Program& program);

}  // namespace idrova
