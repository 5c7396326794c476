// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/drawing_surface.h"
#include "editor/editor_state.h"
#include "model/project.h"

namespace idrova {

/// Draws the labels of `editor.labels` while `DataShown`: pressures at the points, all else at the
/// pipes, with an arrow on every pipe that points from the higher pressure to the lower or, with
/// flows, velocities and losses, the way of the computed flow. What is computed and out of date is
/// grey.
void ApplyDataLabels(const Project& project, const Editor& editor, DrawingSurface& surface);

}  // namespace idrova
