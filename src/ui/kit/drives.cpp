// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/kit/drives.h"

#include <QDir>
#include <QStorageInfo>

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

}  // namespace

std::vector<std::string> Drives() {
    std::vector<std::string> drives;
    for (const QFileInfo& drive : QDir::drives()) drives.push_back(FromQt(drive.absolutePath()));
    if (drives.size() > 1) return drives;
    drives.push_back(FromQt(QDir::homePath()));
    for (const QStorageInfo& volume : QStorageInfo::mountedVolumes()) {
        if (IsForUsers(volume.rootPath())) drives.push_back(FromQt(volume.rootPath()));
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
