// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>

#include "hydraulics/work_network.h"
#include "model/project.h"
#include "table/table_checks.h"
#include "table/table_texts.h"

namespace idrova {

/// Fills the working network from the rows up to the first one that misses a point: pipe p from row
/// p + 1, a value unknown where its cell is empty. Recounts `numins`. Of a table that is refused
/// the working network stays as it was and must not be computed.
std::optional<TableRefusal> TableToNetwork(Project& project, const TableTexts& texts,
                                           WorkNetwork& work);

}  // namespace idrova
