// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/editor_setting.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <system_error>

#include "base/file.h"
#include "results/messages.h"

namespace idrova {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kMostSettingBytes = 65536;

constexpr std::array<const char*, 8> kUsualEditors = {
    "/usr/bin/gnome-text-editor", "/usr/bin/gedit",      "/usr/bin/kate", "/usr/bin/kwrite",
    "/usr/bin/mousepad",          "/usr/bin/featherpad", "/usr/bin/xed",  "/usr/bin/pluma"};

}  // namespace

bool IsFile(const fs::path& path) {
    std::error_code ignored;
    return !path.empty() && fs::exists(path, ignored) && !fs::is_directory(path, ignored);
}

std::string ConfiguredEditor(const fs::path& folder) {
    const Result<std::string> content = ReadWholeFile(folder / kEditorFile, kMostSettingBytes);
    return content ? content->substr(0, content->find_first_of("\r\n")) : "";
}

std::vector<std::string> EditorSuggestions() {
    std::vector<std::string> there;
    std::ranges::copy_if(kUsualEditors, std::back_inserter(there), IsFile);
    if (!there.empty()) return there;
    return {kUsualEditors.begin(), kUsualEditors.end()};
}

std::string EditorBoxText(const fs::path& folder) {
    std::error_code ignored;
    if (!fs::exists(folder / kEditorFile, ignored)) return std::string(kChooseEditor);
    const std::string editor = ConfiguredEditor(folder);
    return IsFile(editor) ? editor : "";
}

bool SaveEditor(const fs::path& folder, const std::string& editor, MessageBoxes& boxes) {
    if (!IsFile(editor)) {
        boxes.Show(kEditorNotFound);
        return false;
    }
    const Status stored = WriteWholeFile(folder / kEditorFile, editor + "\r\n");
    if (!stored) boxes.Show({stored.Error(), kEditorTitle});
    return static_cast<bool>(stored);
}

}  // namespace idrova
