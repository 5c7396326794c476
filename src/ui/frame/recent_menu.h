// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMenu>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace idrova {

/// The entries of "Open recent", which the desktop's settings keep. The menu is hidden while there
/// are none.
class RecentMenu {
  public:
    using Open = std::function<void(const std::filesystem::path&)>;

    RecentMenu(QMenu& menu, Open open);

    /// Puts a file that was opened or saved at the top.
    void Add(const std::filesystem::path& file);
    void Remove(const std::filesystem::path& file);

  private:
    void Keep();
    void Show();

    QMenu& menu_;
    Open open_;
    std::vector<std::string> files_;
};

}  // namespace idrova
