// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "hydraulics/note.h"
#include "hydraulics/work_network.h"
#include "model/settings.h"

namespace idrova {

/// What keeps a network from being computed, each with the place where it can be mended: the fluid,
/// every pipe without length or diameter, every point without pipe and pressure, every component
/// that does not join two pipes; with too few given values every open end where one helps, with too
/// many every value that can go; every given flow that does not fit its pressures. Never empty for
/// a network that a run refuses.
std::vector<Note> ProblemsOf(const Settings& settings, const WorkNetwork& work);

}  // namespace idrova
