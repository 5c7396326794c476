// SPDX-License-Identifier: GPL-3.0-or-later
#include <cstdlib>
#include <iostream>
#include <memory>

#include "model/invariants.h"
#include "projectfile/project_file.h"

namespace idrova {
namespace {

void Require(bool holds, std::string_view rule) {
    if (holds) return;
    std::cerr << "broken: " << rule << '\n';
    std::abort();
}

void ReadTwice(std::string_view text, Project& project) {
    project.ProjectDescription.clear();
    const Status read = ReadProjectText(text, project);
    if (!read) return Require(!read.Error().empty(), "a refusal says why");
    const std::vector<std::string> broken = BrokenInvariants(project);
    Require(broken.empty(), broken.empty() ? "" : broken.front());
    const std::string saved = ProjectFileText(project);
    const Status reread = ReadProjectText(saved, project);
    Require(static_cast<bool>(reread), reread ? "" : reread.Error());
    Require(ProjectFileText(project) == saved, "what was read once stays the same");
}

}  // namespace
}  // namespace idrova

/// Anything may stand in a file: it is refused with a reason, or gives a sound project that
/// survives saving.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const auto project = std::make_unique<idrova::Project>();  // large: one for all runs
    // NOLINTNEXTLINE(*-reinterpret-cast)
    idrova::ReadTwice({reinterpret_cast<const char*>(data), size}, *project);
    return 0;
}
