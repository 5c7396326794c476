// SPDX-License-Identifier: GPL-3.0-or-later
#include "hydraulics/run_settings.h"

#include "base/number_text.h"
#include "hydraulics/messages.h"

namespace idrova {

void ChooseIncompressible(Settings& settings) {
    settings.EquationType = Equation::Incompressible;
}

bool ChooseCompressible(Settings& settings, MessageBoxes& boxes) {
    if (settings.FluidCompressibility == 0) {
        boxes.Show(kNotCompressible);
        return false;
    }
    settings.EquationType = Equation::Compressible;
    return true;
}

CalculationData ShowCalculationData(const Settings& settings) {
    return {GeneralText(settings.BasePressure / kPascalPerBar),
            GeneralText(settings.FluidTemperature)};
}

void SetCalculationData(Settings& settings, const CalculationData& shown,
                        const CalculationData& typed) {
    if (typed.basePressure != shown.basePressure) {
        settings.BasePressure = ToSingle(ReadNumber(typed.basePressure) * kPascalPerBar);
    }
    if (typed.temperature != shown.temperature) {
        settings.FluidTemperature = ToSingle(ReadNumber(typed.temperature));
    }
}

bool MakeFlowRatesPositive(Project& project, MessageBoxes& boxes) {
    if (boxes.Show(kChangeDirections) != Answer::Ok) return false;
    for (int i = 1; i <= project.numtubo; ++i) {
        PipeRec& pipe = project.Pipes[i];
        if (!(pipe.FlowRate < 0)) continue;
        pipe.FlowFromPoint =
            pipe.FlowFromPoint == pipe.StartPoint ? pipe.EndPoint : pipe.StartPoint;
        pipe.FlowRate = -pipe.FlowRate;
    }
    return true;
}

}  // namespace idrova
