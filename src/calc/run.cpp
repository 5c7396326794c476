// SPDX-License-Identifier: GPL-3.0-or-later
#include "calc/run.h"

#include <memory>
#include <ostream>

#include "base/number_text.h"
#include "calc/fluid_choice.h"
#include "calc/json_output.h"
#include "calc/printed_boxes.h"
#include "hydraulics/run_settings.h"
#include "physdata/messages.h"
#include "physdata/pipe_settings.h"
#include "physdata/pump_constants.h"
#include "projectfile/project_file.h"
#include "shell/run_command.h"

namespace idrova {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kSaveTitle = "Save file";

class ProjectRun {
  public:
    ProjectRun(const Options& options, std::ostream& out, std::ostream& err)
        : options_(options), out_(out), err_(err), boxes_(err) {}

    ExitStatus Do() {
        if (!Prepare()) return ExitStatus::WrongUse;
        Compute();
        PrintNotes(run_.outcome);
        const bool saved = Save();
        const bool printed = Print();
        return saved && printed && !reportFailed_ ? StatusOf(run_.outcome.end)
                                                  : ExitStatus::WrongUse;
    }

  private:
    bool Prepare() {
        InitialiseProject(*project_);
        ApplySettings();
        return SaveIsAllowed() && ChooseFluid(project_->settings, options_, boxes_) && Open() &&
               CompletePumps();
    }

    void ApplySettings() {
        project_->settings.Mode = options_.mode;
        project_->settings.SectionType = options_.section;
        project_->settings.Roughness = options_.roughness.value_or(project_->settings.Roughness);
        project_->settings.FluidTemperature = ToSingle(options_.temperature);
        project_->settings.BasePressure = ToSingle(options_.basePressure * kPascalPerBar);
        project_->settings.ResultsInSequence = options_.append;
        ChoosePressureUnit(project_->settings, options_.pressureUnit);
    }

    bool SaveIsAllowed() {
        std::error_code ignored;
        if (options_.save.empty() || options_.force || !fs::exists(options_.save, ignored)) {
            return true;
        }
        boxes_.Show({options_.save.string() + " exists; --force replaces it", kSaveTitle});
        return false;
    }

    bool Open() {
        if (OpenNewProject(*project_, options_.project, boxes_) != OpenOutcome::Opened)
            return false;
        std::error_code ignored;
        project_->ProjectName = fs::absolute(options_.project, ignored).lexically_normal().string();
        return true;
    }

    bool CompletePumps() {
        const Result<PumpDb> pumps = ReadRecords<PumpRecord>(options_.data);
        if (!pumps) {
            boxes_.Show({pumps.Error(), kPumpsTitle});
            return false;
        }
        TellFault(RecordFault::None, pumps->fault, PumpRecord::kFile, pumps->count, kPumpsTitle,
                  boxes_);
        CompletePumpConstants(*project_, *pumps);
        return true;
    }

    void Compute() {
        const bool gas = options_.equation == Equation::Compressible;
        if (gas && !ChooseCompressible(project_->settings, boxes_)) return;
        TableTexts texts;
        FillTable(*project_, texts);
        const auto write = ReportWriter(*project_, options_.data, report_);
        const auto writeReport = [&](const Settings& settings, const WorkNetwork& work) {
            Status written = options_.noReport ? Done{} : write(settings, work);
            reportFailed_ = !written;
            return written;
        };
        run_ = RunNetwork(*project_, texts, *work_,
                          {.boxes = boxes_, .writeReport = writeReport, .seed = options_.seed});
    }

    void PrintNotes(const Outcome& outcome) {
        if (outcome.end != RunEnd::Settled && outcome.end != RunEnd::Refused) {
            err_ << OutcomeLine(outcome) << '\n';
        }
        for (const Note& note : outcome.notes) err_ << note.text << '\n';
    }

    bool Save() {
        if (options_.save.empty() || !run_.results) return true;
        const Status saved = WriteProject(*project_, options_.save);
        if (!saved) boxes_.Show({saved.Error(), kSaveTitle});
        return static_cast<bool>(saved);
    }

    bool Print() {
        if (options_.json) {
            out_ << JsonText(run_, boxes_.Shown());
        } else {
            out_ << report_;
        }
        if (out_.flush()) return true;
        err_ << "The results cannot be printed\n";
        return false;
    }

    static ExitStatus StatusOf(RunEnd end) {
        switch (end) {
            case RunEnd::Settled:
                return ExitStatus::Settled;
            case RunEnd::Refused:
            case RunEnd::Empty:
                return ExitStatus::Refused;
            case RunEnd::Unsettled:
            case RunEnd::Singular:
            case RunEnd::NotFinite:
            case RunEnd::Stopped:
                return ExitStatus::Unsettled;
        }
        return ExitStatus::Unsettled;
    }

    const Options& options_;
    std::ostream& out_;
    std::ostream& err_;
    PrintedBoxes boxes_;
    std::unique_ptr<Project> project_ = std::make_unique<Project>();
    std::unique_ptr<WorkNetwork> work_ = std::make_unique<WorkNetwork>();
    RunRecord run_;
    std::string report_;
    bool reportFailed_ = false;
};

}  // namespace

ExitStatus RunProject(const Options& options, std::ostream& out, std::ostream& err) {
    return ProjectRun(options, out, err).Do();
}

}  // namespace idrova
