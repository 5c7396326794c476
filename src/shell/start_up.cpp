// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/start_up.h"

#include <system_error>

#include "model/version.h"
#include "shell/messages.h"

namespace idrova {

namespace fs = std::filesystem;

void CheckScreen(int widthPixels, MessageBoxes& boxes) {
    constexpr int narrowest = 1024;
    if (widthPixels < narrowest) boxes.Show(kSmallScreen);
}

std::string VersionLine() {
    return "ver. " + VersionText();
}

fs::path WorkingFolder(const fs::path& executable, const fs::path& userDataFolder) {
    const fs::path beside = executable.parent_path();
    std::error_code ignored;
    return fs::is_directory(beside / "IMG", ignored) ? beside : userDataFolder;
}

ShippedFiles FindShippedFiles(const fs::path& executable) {
    const fs::path beside = executable.parent_path();
    const fs::path share = beside.parent_path() / "share";
    const auto firstThere = [](const fs::path& one, const fs::path& other) {
        std::error_code ignored;
        if (fs::exists(one, ignored)) return one;
        return fs::exists(other, ignored) ? other : fs::path();
    };
    return {.samples = firstThere(beside / "samples", share / "idrova" / "samples"),
            .manual = firstThere(beside / kManualFile, share / "doc" / "idrova" / kManualFile)};
}

Status PrepareWorkingFolder(const fs::path& folder, const fs::path& shared) {
    std::error_code error;
    if (fs::exists(folder, error)) return Done{};
    fs::create_directories(folder, error);
    if (error) return Failure{FolderNotMade(folder.string())};
    // An absent database is made empty and an absent icon is drawn, so a failed copy is no failure.
    for (const char* name : {"fluidi.dat", "pompe.dat", "percon.dat", "IMG"}) {
        fs::copy(shared / name, folder / name, fs::copy_options::recursive, error);
    }
    return Done{};
}

}  // namespace idrova
