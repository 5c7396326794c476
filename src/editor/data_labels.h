// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/drawing_surface.h"
#include "editor/editor_state.h"
#include "model/project.h"

namespace idrova {

/// Draws a pressure label at every point and a flow arrow on every pipe while `DataShown`. A flow
/// arrow points from the higher pressure to the lower.
void ApplyDataLabels(const Project& project, const Editor& editor, DrawingSurface& surface);

}  // namespace idrova
