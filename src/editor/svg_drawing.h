// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "editor/editor_state.h"
#include "model/project.h"

namespace idrova {

/// The whole plant as an SVG picture, cut to what is drawn, with the labels that `editor` shows,
/// but nothing marked as selected. Stands in a file of its own or inside HTML.
std::string SvgDrawing(const Project& project, Editor editor);

}  // namespace idrova
