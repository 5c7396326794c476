// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/drawing_surface.h"
#include "editor/editor_state.h"
#include "model/project.h"

namespace idrova {

/// Draws a label at every pipe that the grid shows, with what `editor.labels` names: the computed
/// flow in kg/h, velocity in m/s or loss in Pa/m, the sizes, or the number. Pipes that were not
/// computed have no computed label.
void LabelPipes(const Project& project, const Editor& editor, DrawingSurface& surface);

}  // namespace idrova
