// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/kit/start_program.h"

#include <unistd.h>

#include <QElapsedTimer>
#include <QProcess>

#include "ui/kit/editor_window.h"
#include "ui/kit/messages.h"
#include "ui/kit/qt_text.h"

namespace idrova {

namespace {

/// A program that fails later than this has been seen by the user.
constexpr qint64 kStartMilliseconds = 5000;

/// Without a terminal to read or write, and not ended by one that this program was started from.
void LetGo(QProcess& process) {
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    process.setChildProcessModifier([] { ::setsid(); });
}

bool HasFailed(const QProcess& process) {
    return process.exitStatus() == QProcess::CrashExit || process.exitCode() != 0;
}

}  // namespace

Status StartWithFile(const std::filesystem::path& program, const std::filesystem::path& file,
                     const QObject& asker,
                     const std::function<void(const std::string& words)>& gaveUp) {
    // It belongs to nobody: deleting it would end the program that it has started.
    auto* process = new QProcess;
    process->setProgram(PathToQt(program));
    process->setArguments({PathToQt(file)});
    process->setWorkingDirectory(PathToQt(file.parent_path()));
    LetGo(*process);
    const EditorWindow window;
    process->start();
    if (!process->waitForStarted()) {
        const std::string reason = FromQt(process->errorString());
        delete process;
        return Failure{NotStarted(program.string(), reason)};
    }
    QElapsedTimer running;
    running.start();
    QObject::connect(process, &QProcess::finished, &asker, [process, program, gaveUp, running] {
        if (!HasFailed(*process) || running.hasExpired(kStartMilliseconds)) return;
        gaveUp(GaveUp(program.string()));
    });
    QObject::connect(process, &QProcess::finished, process, &QObject::deleteLater);
    window.BringToFront(process->processId(), PathToQt(file.filename()));
    return Done{};
}

}  // namespace idrova
