// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "base/message_boxes.h"
#include "hydraulics/compute_network.h"
#include "hydraulics/work_network.h"
#include "model/settings.h"

namespace idrova {

/// What a run left behind for the JSON text.
struct RunRecord {
    Outcome outcome;
    std::vector<MessageBox> messages;
    const WorkNetwork* results = nullptr;  ///< as reported; null when nothing was stored
};

/// One JSON object and a line end. Numbers that are not finite are null, text that is not UTF-8
/// is replaced character by character.
std::string JsonText(const Settings& settings, const RunRecord& run);

}  // namespace idrova
