// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "base/message_boxes.h"
#include "calc/variant_change.h"
#include "results/run_record.h"

namespace idrova {

/// What the JSON text tells.
struct JsonContent {
    std::string project;  ///< the file, as it was named
    const std::vector<VariantChange>& changes;
    const RunRecord& run;
    const std::vector<MessageBox>& messages;
};

/// One JSON object, on one line when `oneLine`, and a line end. Numbers that are not finite are
/// null, text that is not UTF-8 is replaced character by character.
std::string JsonText(const JsonContent& content, bool oneLine);

}  // namespace idrova
