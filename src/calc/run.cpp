// SPDX-License-Identifier: GPL-3.0-or-later
#include "calc/run.h"

#include <memory>
#include <ostream>

#include "base/number_text.h"
#include "calc/export_results.h"
#include "calc/fluid_choice.h"
#include "calc/json_output.h"
#include "calc/printed_boxes.h"
#include "hydraulics/run_settings.h"
#include "physdata/messages.h"
#include "physdata/pipe_settings.h"
#include "physdata/pump_constants.h"
#include "physdata/settings_file.h"
#include "projectfile/project_file.h"
#include "results/limit_notes.h"
#include "results/messages.h"
#include "shell/run_command.h"

namespace idrova {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kSaveTitle = "Save file";
constexpr std::string_view kChangeTitle = "Change";

/// A project that was not computed is worse than one that did not settle.
ExitStatus Worse(ExitStatus one, ExitStatus other) {
    for (const ExitStatus status :
         {ExitStatus::WrongUse, ExitStatus::Refused, ExitStatus::Unsettled}) {
        if (one == status || other == status) return status;
    }
    return ExitStatus::Settled;
}

class ProjectRun {
  public:
    /// `follows` adds the report to the results file.
    ProjectRun(const Options& options, std::size_t index, bool follows, std::ostream& out,
               std::ostream& err)
        : options_(options),
          path_(options.projects[index]),
          follows_(follows),
          out_(out),
          err_(err),
          boxes_(err) {}

    ExitStatus Do() {
        const bool ready = Prepare();
        if (ready) Compute();
        PrintNotes();
        const bool saved = Save() && Export();
        const bool printed = (!ready && options_.projects.size() == 1) || Print();
        return ready && saved && printed && !reportFailed_ ? StatusOf(run_.outcome.end)
                                                           : ExitStatus::WrongUse;
    }

    bool IsReported() const { return run_.results && !options_.noReport && !reportFailed_; }

  private:
    bool Prepare() {
        InitialiseProject(*project_);
        if (!TakeStoredSettings()) return false;
        ApplySettings();
        return SaveIsAllowed() && ChooseFluid(project_->settings, options_, boxes_) && Open() &&
               CompletePumps() && Change();
    }

    /// False, told in a box, when there are some that cannot be read: the results would be others.
    bool TakeStoredSettings() {
        if (options_.noSettings) return true;
        const auto stored = ReadSettingsOf(path_);
        if (!stored) return true;
        if (!*stored) {
            boxes_.Show({SettingsUnread(stored->Error()), path_.string()});
            return false;
        }
        UseSettings(**stored, project_->settings);
        roughnessItem_ = (*stored)->roughnessItem;
        limits_ = (*stored)->limits;
        return true;
    }

    /// Each option goes before its stored setting.
    void ApplySettings() {
        Settings& settings = project_->settings;
        settings.Mode = options_.mode;
        settings.SectionType = options_.section.value_or(settings.SectionType);
        settings.EquationType = options_.equation.value_or(settings.EquationType);
        settings.ResultsInSequence = follows_;
        if (options_.temperature) settings.FluidTemperature = ToSingle(*options_.temperature);
        if (options_.basePressure) {
            settings.BasePressure = ToSingle(*options_.basePressure * kPascalPerBar);
        }
        if (options_.roughness) {
            settings.Roughness = *options_.roughness;
            roughnessItem_ = kUserRoughnessItem;
        }
        ChoosePressureUnit(settings, options_.pressureUnit.value_or(settings.PressureUnit));
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
        if (OpenNewProject(*project_, path_, boxes_) != OpenOutcome::Opened) return false;
        std::error_code ignored;
        project_->ProjectName = fs::absolute(path_, ignored).lexically_normal().string();
        return true;
    }

    bool Change() {
        for (const VariantChange& change : options_.changes) {
            const Status changed = ApplyChange(change, *project_);
            if (!changed) boxes_.Show({changed.Error(), kChangeTitle});
            if (!changed) return false;
        }
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
        const bool gas = project_->settings.EquationType == Equation::Compressible;
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
        run_.outcome = HeldAgainst(limits_, run_);
    }

    void PrintNotes() {
        const Outcome& outcome = run_.outcome;
        if (outcome.end != RunEnd::Settled && outcome.end != RunEnd::Refused) {
            err_ << OutcomeLine(outcome) << '\n';
        }
        for (const Note& note : outcome.notes) err_ << note.text << '\n';
    }

    bool Save() {
        if (options_.save.empty() || !run_.results) return true;
        Status saved = WriteProject(*project_, options_.save);
        if (saved)
            saved = WriteSettingsOf(options_.save, {project_->settings, roughnessItem_, limits_});
        return Told(saved, kSaveTitle);
    }

    bool Export() {
        return !run_.results || Told(ExportResults(options_, *project_, run_), kExportTitle);
    }

    bool Told(const Status& written, std::string_view title) {
        if (!written) boxes_.Show({written.Error(), title});
        return static_cast<bool>(written);
    }

    bool Print() {
        if (options_.json) {
            out_ << JsonText({path_.string(), options_.changes, run_, boxes_.Shown()},
                             options_.projects.size() > 1);
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
    const fs::path& path_;
    const bool follows_;
    std::ostream& out_;
    std::ostream& err_;
    PrintedBoxes boxes_;
    std::unique_ptr<Project> project_ = std::make_unique<Project>();
    std::unique_ptr<WorkNetwork> work_ = std::make_unique<WorkNetwork>();
    RunRecord run_;
    std::string_view roughnessItem_ = kRoughnessPresets[0].item;
    Limits limits_;
    std::string report_;
    bool reportFailed_ = false;
};

}  // namespace

ExitStatus RunProjects(const Options& options, std::ostream& out, std::ostream& err) {
    ExitStatus worst = ExitStatus::Settled;
    bool follows = options.append;  // otherwise the first report replaces what there was
    for (std::size_t i = 0; i < options.projects.size(); ++i) {
        ProjectRun run(options, i, follows, out, err);
        worst = Worse(worst, run.Do());
        follows = follows || run.IsReported();
    }
    return worst;
}

}  // namespace idrova
