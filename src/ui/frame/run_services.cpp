// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/frame/run_services.h"

#include "results/report.h"
#include "results/results_file.h"
#include "ui/program.h"

namespace idrova {

RunServices ServicesOfRun(Program& program, MessageBoxes& boxes,
                          const std::function<void(const Status&)>& stored) {
    const auto writeReport = [&program, stored] {
        program.report = ReportText(program.project, program.work, CurrentReportTime());
        stored(StoreReport(program.project.settings, program.report, program.folder));
    };
    return {.boxes = boxes, .writeReport = writeReport, .seed = {}};
}

}  // namespace idrova
