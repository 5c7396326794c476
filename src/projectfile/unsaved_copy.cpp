// SPDX-License-Identifier: GPL-3.0-or-later
#include "projectfile/unsaved_copy.h"

#include <algorithm>
#include <span>

#include "base/file.h"
#include "projectfile/messages.h"
#include "projectfile/project_file.h"
#include "projectfile/project_keys.h"

namespace idrova {

namespace {

/// Slots that are not in use may hold what an earlier network left there.
bool IsEmpty(const Project& project) {
    const auto pipes =
        std::span(project.Pipes).subspan(1, static_cast<std::size_t>(project.numtubo));
    const auto rows = std::span(project.TableRows).subspan(kFirstTableRow, kMaxTableRows);
    const auto isBlank = [](const TableRowRec& row) { return row == TableRowRec(); };
    return std::ranges::none_of(pipes, &PipeRec::IsDrawn) && std::ranges::all_of(rows, isBlank);
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

Result<std::string> KeepUnsaved(const std::optional<std::string>& text,
                                const std::filesystem::path& folder) {
    if (!text) return std::string();
    const std::filesystem::path copy = folder / kUnsavedFile;
    if (Holds(copy, *text)) return UnsavedKept(copy.string());
    const Status written = WriteWholeFile(copy, *text, OldFile::KeptBeside);
    if (!written) return Failure{UnsavedLost(written.Error())};
    return UnsavedKept(copy.string());
}

}  // namespace idrova
