// SPDX-License-Identifier: GPL-3.0-or-later
#include "projectfile/unsaved_copy.h"

#include <algorithm>

#include "base/file.h"
#include "projectfile/project_file.h"
#include "projectfile/project_keys.h"

namespace idrova {

namespace {

bool IsEmpty(const Project& project) {
    const auto isBlank = [](const TableRowRec& row) { return row == TableRowRec(); };
    return std::ranges::none_of(project.Pipes, &PipeRec::IsDrawn) &&
           std::ranges::all_of(project.TableRows, isBlank);
}

bool Holds(const std::filesystem::path& file, const std::string& text) {
    const Result<std::string> bytes = ReadWholeFile(file, kLargestProjectFile);
    return bytes && *bytes == text;
}

}  // namespace

std::optional<std::string> UnsavedText(const Project& project) {
    if (IsEmpty(project)) return std::nullopt;
    std::string text = ProjectFileText(project);
    if (Holds(project.ProjectName, text)) return std::nullopt;
    return text;
}

void KeepUnsaved(const std::optional<std::string>& text, const std::filesystem::path& folder) {
    const std::filesystem::path copy = folder / kUnsavedFile;
    if (!text || Holds(copy, *text)) return;
    static_cast<void>(WriteWholeFile(copy, *text, OldFile::KeptBeside));
}

}  // namespace idrova
