// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/kit/drives.h"

#include <QDir>
#include <QStorageInfo>
#include <algorithm>

#include "ui/kit/qt_text.h"

namespace idrova {

namespace {

bool IsForUsers(const QString& mountPoint) {
    return mountPoint.startsWith("/media/") || mountPoint.startsWith("/run/media/") ||
           mountPoint.startsWith("/mnt/") || mountPoint.startsWith("/Volumes/");
}

bool IsInside(const std::string& folder, const std::string& drive) {
    return folder.starts_with(drive) &&
           (drive.ends_with('/') || folder.size() == drive.size() || folder[drive.size()] == '/');
}

std::vector<std::string> MachineDrives() {
    std::vector<std::string> drives;
    for (const QFileInfo& drive : QDir::drives()) drives.push_back(FromQt(drive.absolutePath()));
    if (drives.size() > 1) return drives;
    drives.push_back(FromQt(QDir::homePath()));
    for (const QStorageInfo& volume : QStorageInfo::mountedVolumes()) {
        if (IsForUsers(volume.rootPath())) drives.push_back(FromQt(volume.rootPath()));
    }
    return drives;
}

}  // namespace

std::vector<std::string> Drives(const std::vector<std::filesystem::path>& places) {
    std::vector<std::string> drives = MachineDrives();
    for (const std::filesystem::path& place : places) {
        const std::string folder = FromQt(PathToQt(place));
        if (!folder.empty() && std::ranges::find(drives, folder) == drives.end()) {
            drives.push_back(folder);
        }
    }
    return drives;
}

std::string DriveOf(const std::string& folder, const std::vector<std::string>& drives) {
    std::string longest;
    for (const std::string& drive : drives) {
        if (IsInside(folder, drive) && drive.size() > longest.size()) longest = drive;
    }
    return longest;
}

}  // namespace idrova
