// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QtGlobal>
#include <memory>

namespace idrova {

/// The window in which another program is going to show a file. To be made before that program is
/// started; does nothing on desktops that do not let one program place another's windows.
class EditorWindow {
  public:
    EditorWindow();

    /// Has the window maximised and brought to the front: the first one that opens within ten
    /// seconds and is of process `pid`, or bears the file's name when the process hands the file
    /// on to another; when none has opened after a second, one that bore the name before. Returns
    /// at once.
    void BringToFront(qint64 pid, const QString& fileName) const;

  private:
    class Desktop;
    std::shared_ptr<Desktop> desktop_;  ///< null where nothing can be done
};

}  // namespace idrova
