// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <filesystem>
#include <string>
#include <string_view>

namespace idrova {

/// Texts are UTF-8 in the logic and QString in the windows.

inline QString ToQt(std::string_view utf8) {
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}
inline std::string FromQt(const QString& text) {
    return text.toStdString();
}

inline QString PathToQt(const std::filesystem::path& path) {
    return QString::fromStdU16String(path.u16string());
}
inline std::filesystem::path PathFromQt(const QString& path) {
    return std::filesystem::path(path.toStdU16String());
}

}  // namespace idrova
