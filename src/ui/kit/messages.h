// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "base/message_boxes.h"

namespace idrova {

constexpr FixedMessage kNoPrinter{
    "No printer is set up\nDo you want to save the results as a PDF file ?", "Print",
    BoxIcon::Exclamation, BoxButtons::YesNo};

constexpr FixedMessage kPrinterFailed{"The printer did not take the results", "Print"};

inline std::string NotStarted(const std::string& program, const std::string& reason) {
    return program + " can not be started: " + reason;
}

inline std::string GaveUp(const std::string& program) {
    return program + " has ended without showing the file. It may need a terminal";
}

}  // namespace idrova
