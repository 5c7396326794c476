// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/message_boxes.h"
#include "hydraulics/work_network.h"
#include "model/project.h"
#include "table/table_texts.h"

namespace idrova {

/// Fills the working network from the rows up to the first one that misses a point: pipe p from row
/// p + 1, a value unknown where its cell is empty. Recounts `numins`. False, told in a box, when
/// rows disagree on a point's pressure or the point numbers do not run from 1 without gaps: the
/// working network then stays as it was and must not be computed.
bool TableToNetwork(Project& project, const TableTexts& texts, WorkNetwork& work,
                    MessageBoxes& boxes);

}  // namespace idrova
