// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

#include "base/message_boxes.h"
#include "model/project.h"

namespace idrova {

/// The settings that only the computation reads, and the command that turns flows positive.

void ChooseIncompressible(Settings& settings);

/// Refused with a message, nothing changed, when the fluid is a liquid (compressibility 0). True
/// when chosen.
bool ChooseCompressible(Settings& settings, MessageBoxes& boxes);

/// What the calculation data window shows and takes: bar and degrees Celsius as text.
struct CalculationData {
    std::string basePressure;
    std::string temperature;
};

CalculationData ShowCalculationData(const Settings& settings);

/// Takes the texts that differ from those `shown`: the others may have lost digits.
void SetCalculationData(Settings& settings, const CalculationData& shown,
                        const CalculationData& typed);

/// Asks, then moves the reference point of every pipe with a negative flow to its other end, so
/// that all flows are positive. True when it was done.
bool MakeFlowRatesPositive(Project& project, MessageBoxes& boxes);

}  // namespace idrova
