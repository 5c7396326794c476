// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/results_file.h"

#include <system_error>

#include "base/file.h"
#include "results/editor_setting.h"
#include "results/messages.h"

namespace idrova {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kMostResultsBytes = std::size_t{1} << 30U;

bool Exists(const fs::path& path) {
    std::error_code ignored;
    return fs::exists(path, ignored);
}

/// Results can be computed again, and one key in the single-pipe window writes them: a wait for the
/// disk would be felt.
Status Write(const fs::path& file, std::string_view report) {
    return WriteWholeFile(file, report, OldFile::Dropped, Flush::Never);
}

}  // namespace

Status StoreReport(const Settings& settings, std::string_view report, const fs::path& folder) {
    const fs::path file = folder / kResultsFile;
    if (!settings.ResultsInSequence || !Exists(file)) return Write(file, report);
    const Result<std::string> old = ReadWholeFile(file, kMostResultsBytes);
    if (!old) return Failure{old.Error()};
    // The reports before may be of networks that are gone.
    return WriteWholeFile(file, *old + std::string(report));
}

void PrintReport(const std::string& report, MessageBoxes& boxes,
                 const std::function<void(const std::string&)>& print) {
    if (boxes.Show(kAskPrint) == Answer::Yes) print(report);
}

void DeleteResults(const fs::path& folder, MessageBoxes& boxes) {
    if (boxes.Show(kAskDeleteResults) != Answer::Ok) return;
    const fs::path file = folder / kResultsFile;
    std::error_code error;
    fs::remove(file, error);
    if (error) {
        boxes.Show({"Cannot delete " + file.string() + ": " + error.message(), kResultsTitle});
    }
}

void ShowResults(const fs::path& folder, MessageBoxes& boxes, const StartProgram& start) {
    const fs::path editor = ConfiguredEditor(folder);
    const fs::path results = folder / kResultsFile;
    const bool hasEditor = IsFile(editor);
    const bool hasResults = Exists(results);
    if (!hasEditor) boxes.Show(kConfigureEditor);
    if (!hasResults) boxes.Show(kNoResultsFile);
    if (!hasEditor || !hasResults) return;
    if (const Status started = start(editor, results); !started) {
        boxes.Show({started.Error(), kShowTitle});
    }
}

}  // namespace idrova
