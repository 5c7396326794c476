// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPageLayout>
#include <filesystem>
#include <optional>
#include <string>

#include "base/message_boxes.h"
#include "base/result.h"

class QWidget;

namespace idrova {

/// Prints plain lines in a fixed font through the print dialog of the desktop. Without a printer
/// it says so and offers a PDF file in `folder` instead.
void PrintText(const std::string& text, const std::filesystem::path& folder, QWidget* parent,
               MessageBoxes& boxes);

/// Says that there is no printer, and writes a PDF file where the user wants one.
void OfferPdf(const std::string& text, const std::filesystem::path& folder, QWidget* parent,
              MessageBoxes& boxes);

/// The same pages as a PDF file, A4 unless told otherwise; a failure leaves an old file as it was.
Status WritePdf(const std::string& text, const std::filesystem::path& path,
                const std::optional<QPageLayout>& layout = {});

}  // namespace idrova
