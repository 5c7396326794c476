// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/sizing_texts.h"

#include "base/number_text.h"
#include "results/network_results.h"

namespace idrova {

SizingTexts SizingOf(const RunRecord& record, int pipe) {
    if (!record.results || pipe < 1 || pipe > record.results->WorkPipeCount) return {};
    if (!record.results->WorkPipes[pipe].IsDrawn()) return {};
    const PipeResult result = ResultOfPipe(record.settings, *record.results, pipe);
    return {FixedText(result.velocity, 3), FixedText(result.dropPerMetre, 2)};
}

}  // namespace idrova
