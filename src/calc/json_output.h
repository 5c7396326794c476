// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "base/message_boxes.h"
#include "results/run_record.h"

namespace idrova {

/// One JSON object and a line end. Numbers that are not finite are null, text that is not UTF-8
/// is replaced character by character.
std::string JsonText(const RunRecord& run, const std::vector<MessageBox>& messages);

}  // namespace idrova
