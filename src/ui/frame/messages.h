// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/message_boxes.h"

namespace idrova {

constexpr FixedMessage kNoPrinter{
    "No printer is set up\nDo you want to save the results as a PDF file ?", "Print",
    BoxIcon::Exclamation, BoxButtons::YesNo};

constexpr FixedMessage kPrinterFailed{"The printer did not take the results", "Print"};

constexpr const char* kProjectIsTable = "This project is a table: choose Mode, Table (Ctrl+2)";

}  // namespace idrova
