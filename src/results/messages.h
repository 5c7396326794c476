// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

#include "base/message_boxes.h"

namespace idrova {

constexpr std::string_view kResultsTitle = "Results";
constexpr std::string_view kShowTitle = "Files visualization";
constexpr std::string_view kEditorTitle = "Text editor";

constexpr FixedMessage kAskPrint{"Do you want to print last computation results ?", "Print",
                                 BoxIcon::Question, BoxButtons::YesNo};
constexpr FixedMessage kAskDeleteResults{"Do you want to delete results file ?", kResultsTitle,
                                         BoxIcon::Question, BoxButtons::OkCancel};
constexpr FixedMessage kConfigureEditor{"Configure text editor", kShowTitle, BoxIcon::Exclamation};
constexpr FixedMessage kNoResultsFile{"The results file does not exist", kShowTitle,
                                      BoxIcon::Exclamation};
constexpr FixedMessage kEditorNotFound{"Editor not found", kEditorTitle};

constexpr std::string_view kExportTitle = "Export";
constexpr std::string_view kNoResultsToExport = "There are no results to export";
constexpr std::string_view kOldResultsToExport =
    "The plant has changed since its computation: compute it again first";
constexpr std::string_view kNoDrawingToExport = "Only a drawn plant has a drawing";
constexpr std::string_view kNoGasInEpanet = "EPANET computes liquids only";

}  // namespace idrova
