// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <string>

#include "base/message_boxes.h"
#include "base/result.h"

class QWidget;

namespace idrova {

/// Prints plain lines in a fixed font through the print dialog of the desktop. Without a printer
/// it says so and offers a PDF file instead.
void PrintText(const std::string& text, QWidget* parent, MessageBoxes& boxes);

/// Says that there is no printer, and writes a PDF file where the user wants one.
void OfferPdf(const std::string& text, QWidget* parent, MessageBoxes& boxes);

/// The same pages as a PDF file; a failure leaves an old file as it was.
Status WritePdf(const std::string& text, const std::filesystem::path& path);

}  // namespace idrova
