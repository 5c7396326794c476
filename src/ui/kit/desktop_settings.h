// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSettings>

namespace idrova {

/// What the program remembers from one run to the next, kept as the desktop keeps such things.
class DesktopSettings : public QSettings {
  public:
    DesktopSettings() : QSettings("idrova", "idrova") {}
};

}  // namespace idrova
