// SPDX-License-Identifier: GPL-3.0-or-later
#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QIcon>
#include <QStandardPaths>
#include <algorithm>
#include <filesystem>
#include <memory>
#include <string_view>
#include <vector>

#include "model/version.h"
#include "shell/start_up.h"
#include "ui/frame/file_commands.h"
#include "ui/frame/mdi.h"
#include "ui/kit/logo_picture.h"
#include "ui/kit/qt_message_boxes.h"
#include "ui/kit/qt_text.h"
#include "ui/program.h"
#include "ui/windows/frm_start.h"

namespace {

namespace fs = std::filesystem;

/// Usage and version are printed without a display.
bool AsksForText(int argc, char* argv[]) {
    return std::any_of(argv, argv + argc, [](std::string_view argument) {
        return argument == "--help" || argument == "-h" || argument == "--help-all" ||
               argument == "--version" || argument == "-v";
    });
}

/// The project files named on the command line, as full paths. Ends the program after --help,
/// --version and unknown options.
std::vector<fs::path> NamedFiles(const QCoreApplication& application) {
    QCoreApplication::setApplicationName("idrova");
    QCoreApplication::setApplicationVersion(idrova::ToQt(idrova::VersionText()));
    QCommandLineParser parser;
    parser.setApplicationDescription("Checks fluid distribution piping.");
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addPositionalArgument("PROJECT.iv", "A project to open.", "[PROJECT.iv]");
    parser.process(application);
    std::vector<fs::path> files;
    for (const QString& name : parser.positionalArguments()) {
        files.push_back(fs::absolute(idrova::PathFromQt(name)).lexically_normal());
    }
    return files;
}

fs::path Executable() {
    return idrova::PathFromQt(QCoreApplication::applicationFilePath());
}

fs::path EnterWorkingFolder(idrova::MessageBoxes& boxes) {
    const fs::path executable = Executable();
    const QString data = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    fs::path folder = idrova::WorkingFolder(executable, idrova::PathFromQt(data));
    const fs::path shared = executable.parent_path().parent_path() / "share" / "idrova";
    const idrova::Status prepared = idrova::PrepareWorkingFolder(folder, shared);
    if (!prepared) boxes.Show({prepared.Error(), "Idrova"});
    std::error_code ignored;
    fs::current_path(folder, ignored);
    return folder;
}

/// Where users keep their projects: their documents, or their home.
fs::path ProjectsFolder() {
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return idrova::PathFromQt(QDir(documents).exists() ? documents : QDir::homePath());
}

}  // namespace

int main(int argc, char* argv[]) {
    if (AsksForText(argc, argv)) NamedFiles(QCoreApplication(argc, argv));
    QApplication application(argc, argv);
    const std::vector<fs::path> files = NamedFiles(application);
    idrova::PrepareInput();
    QApplication::setDesktopFileName(idrova::kApplicationId);
    QApplication::setWindowIcon(idrova::LogoIcon());
    QApplication::setQuitOnLastWindowClosed(false);

    idrova::QtMessageBoxes boxes;
    const auto program = std::make_unique<idrova::Program>(EnterWorkingFolder(boxes), boxes);
    program->shipped = idrova::FindShippedFiles(Executable());
    program->lastFolder = ProjectsFolder();
    std::unique_ptr<idrova::MDI> mdi;
    idrova::FrmStart(boxes, [&] {
        mdi = std::make_unique<idrova::MDI>(*program);
        QApplication::setQuitOnLastWindowClosed(true);
        mdi->show();
        for (const fs::path& file : files) OpenFile(*mdi, file);
    });
    return QApplication::exec();
}
