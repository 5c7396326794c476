// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/frame/recent_menu.h"

#include <algorithm>
#include <utility>

#include "shell/recent_files.h"
#include "ui/kit/desktop_settings.h"
#include "ui/kit/qt_text.h"

namespace idrova {

namespace {

constexpr const char* kKey = "recentFiles";

}  // namespace

RecentMenu::RecentMenu(QMenu& menu, Open open) : menu_(menu), open_(std::move(open)) {
    for (const QString& file : DesktopSettings().value(kKey).toStringList()) {
        files_.push_back(FromQt(file));
    }
    files_.resize(std::min(files_.size(), kMostRecentFiles));
    Show();
}

void RecentMenu::Add(const std::filesystem::path& file) {
    files_ = WithRecentFile(std::move(files_), FromQt(PathToQt(file)));
    Keep();
}

void RecentMenu::Remove(const std::filesystem::path& file) {
    std::erase(files_, FromQt(PathToQt(file)));
    Keep();
}

void RecentMenu::Keep() {
    QStringList files;
    for (const std::string& file : files_) files.append(ToQt(file));
    DesktopSettings().setValue(kKey, files);
    Show();
}

void RecentMenu::Show() {
    menu_.clear();
    for (std::size_t i = 0; i < files_.size(); ++i) {
        QAction* action = menu_.addAction(ToQt(RecentFileCaption(i, files_[i])));
        action->setObjectName(menu_.objectName() + "_" + QString::number(i));
        // Opening makes the entries anew, this one included.
        QObject::connect(
            action, &QAction::triggered, &menu_,
            [this, file = files_[i]] { open_(PathFromQt(ToQt(file))); }, Qt::QueuedConnection);
    }
    menu_.menuAction()->setVisible(!files_.empty());
}

}  // namespace idrova
