// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/kit/start_program.h"

#include <QProcess>

#include "ui/kit/editor_window.h"
#include "ui/kit/qt_text.h"

namespace idrova {

Status StartWithFile(const std::filesystem::path& program, const std::filesystem::path& file) {
    QProcess process;
    process.setProgram(PathToQt(program));
    process.setArguments({PathToQt(file)});
    process.setWorkingDirectory(PathToQt(file.parent_path()));
    const EditorWindow window;
    qint64 pid = 0;
    if (!process.startDetached(&pid)) {
        return Failure{program.string() + " can not be started: " + FromQt(process.errorString())};
    }
    window.BringToFront(pid, PathToQt(file.filename()));
    return Done{};
}

}  // namespace idrova
