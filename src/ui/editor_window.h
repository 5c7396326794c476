// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QtGlobal>

namespace idrova {

/// Has the window in which another program shows `fileName` maximised and brought to the front:
/// the first one that opens within ten seconds and is of process `pid`, or bears the file's name
/// when the process hands the file on to another. Returns at once; does nothing on desktops that
/// do not let one program place another's windows.
void BringEditorToFront(qint64 pid, const QString& fileName);

}  // namespace idrova
