// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/drawing_surface.h"
#include "editor/editor_state.h"
#include "model/project.h"

namespace idrova {

/// Draws the whole plant as project and editor now stand: grid, pipes, point markers, icons, the
/// labels of what is selected, and the data labels when they are shown. Changes neither.
void DrawPlant(const Project& project, const Editor& editor, DrawingSurface& surface);

/// The same with nothing marked as selected.
void DrawPlantOnPaper(const Project& project, const Editor& editor, DrawingSurface& surface);

/// Draws the pipe that is begun as it would end in a cell, with its length in cells; red where it
/// would be refused. Nothing when none is begun.
void DrawBegunPipe(const Project& project, const Editor& editor, int cell, DrawingSurface& surface);

}  // namespace idrova
