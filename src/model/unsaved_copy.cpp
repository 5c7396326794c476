// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/unsaved_copy.h"

#include <algorithm>
#include <string>

#include "base/file.h"
#include "model/project_file.h"
#include "model/project_keys.h"

namespace idrova {

namespace {

bool IsEmpty(const Project& project) {
    const auto isBlank = [](const TableRowRec& row) { return row == TableRowRec(); };
    return std::ranges::none_of(project.Pipes, &PipeRec::IsDrawn) &&
           std::ranges::all_of(project.TableRows, isBlank);
}

}  // namespace

void KeepUnsaved(const Project& project, const std::filesystem::path& folder) {
    if (IsEmpty(project)) return;
    const std::string text = ProjectFileText(project);
    const Result<std::string> saved = ReadWholeFile(project.ProjectName, kLargestProjectFile);
    if (saved && *saved == text) return;
    static_cast<void>(WriteWholeFile(folder / kUnsavedFile, text, OldFile::KeptBeside));
}

}  // namespace idrova
