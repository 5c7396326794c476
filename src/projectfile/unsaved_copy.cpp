// SPDX-License-Identifier: GPL-3.0-or-later
#include "projectfile/unsaved_copy.h"

#include <algorithm>
#include <memory>
#include <span>

#include "base/file.h"
#include "model/drawn_records.h"
#include "model/pipe_sizes.h"
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

/// Without what computing and selecting write: results, and the outside diameter of a nominal size.
std::string TypedText(const Project& project) {
    const auto typed = std::make_unique<Project>(project);
    for (const auto& [number, pipe] : DrawnPipes(*typed)) {
        if (typed->FlowUnknown[number]) pipe.FlowRate = 0;
        if (NominalSizeOf(pipe.Diameter) != 0) pipe.OuterSize = 0;
    }
    for (const auto& [number, point] : DrawnPoints(*typed)) {
        if (typed->PressureUnknown[number]) point.Pressure = 0;
    }
    for (CellRec& cell : typed->Cells) cell.Result = 0;
    return ProjectFileText(*typed);
}

bool HoldsAllTyped(const std::filesystem::path& file, const Project& project) {
    const Result<std::string> bytes = ReadWholeFile(file, kLargestProjectFile);
    const auto saved = std::make_unique<Project>();
    if (!bytes || !ReadProjectText(*bytes, *saved)) return false;
    saved->ProjectName = project.ProjectName;
    return TypedText(*saved) == TypedText(project);
}

}  // namespace

std::optional<std::string> UnsavedText(const Project& project) {
    if (IsEmpty(project)) return std::nullopt;
    if (HoldsAllTyped(project.ProjectName, project)) return std::nullopt;
    return ProjectFileText(project);
}

bool IsUnsavedCopy(const std::filesystem::path& path, const std::filesystem::path& folder) {
    const std::filesystem::path copy = folder / kUnsavedFile;
    return path == copy || path == copy.string() + "~";
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
