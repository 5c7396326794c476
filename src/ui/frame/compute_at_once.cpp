// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/frame/compute_at_once.h"

#include <QApplication>
#include <chrono>
#include <utility>

#include "results/report.h"
#include "shell/run_command.h"
#include "ui/program.h"

namespace idrova {

namespace {

constexpr std::chrono::milliseconds kPause{400};

class UnansweredBoxes final : public MessageBoxes {
  public:
    Answer Show(const MessageBox& box) override {
        return box.buttons == BoxButtons::YesNo ? Answer::No : Answer::Ok;
    }
};

/// A question or a list is open, or a mouse button held down.
bool IsUserBusy() {
    return QApplication::activeModalWidget() != nullptr ||
           QApplication::activePopupWidget() != nullptr ||
           QApplication::mouseButtons() != Qt::NoButton;
}

}  // namespace

ComputeAtOnce::ComputeAtOnce(Program& program, std::function<void()> computed)
    : program_(program), computed_(std::move(computed)) {
    pause_.setSingleShot(true);
    pause_.setInterval(kPause);
    QObject::connect(&pause_, &QTimer::timeout, [this] { Compute(); });
}

void ComputeAtOnce::ShowState() {
    if (program_.shell.ComputesAtOnce && IsToCompute(program_.project, RecordOf(program_))) {
        pause_.start();
    } else {
        pause_.stop();
    }
}

void ComputeAtOnce::Compute() {
    if (IsUserBusy()) return pause_.start();
    const Project& project = program_.project;
    const auto keepReport = [&](const Settings& settings, const WorkNetwork& work) {
        program_.report = ReportText(settings, project.ProjectName, work, CurrentReportTime());
        program_.reportStored = false;
        return Status(Done{});
    };
    UnansweredBoxes boxes;
    program_.records[project.settings.Mode] =
        RunNetwork(program_.project, program_.table, program_.work,
                   {.boxes = boxes, .writeReport = keepReport});
    computed_();
}

}  // namespace idrova
