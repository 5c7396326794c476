// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/frame/mdi.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QMimeData>
#include <QScreen>
#include <QShortcut>
#include <QStatusBar>
#include <QUrl>

#include "physdata/fluids.h"
#include "physdata/pipe_settings.h"
#include "projectfile/file_form.h"
#include "projectfile/unsaved_copy.h"
#include "ui/frame/commands.h"
#include "ui/frame/menu_bar.h"
#include "ui/frame/mode_windows.h"
#include "ui/frame/status_line.h"
#include "ui/kit/child_window.h"
#include "ui/kit/child_windows.h"
#include "ui/kit/controls.h"
#include "ui/kit/qt_text.h"
#include "ui/panel/frm_com.h"
#include "ui/program.h"
#include "ui/windows/frm_help.h"

namespace idrova {

namespace {

constexpr QSize kPreferredSize(1360, 1080);
constexpr QSize kFrameAllowance(16, 48);  ///< what a desktop puts round a window

void LoadStartState(Program& program) {
    InitialiseProject(program.project);
    program.roughnessLabel = StartRoughnessLabel(program.project.settings);
    LoadCurrentFluid(program.project.settings, program.fluids, program.folder, program.boxes);
    LoadComponentDatabases(program.components, program.folder, program.boxes);
}

/// The project file in what is being dragged; empty when there is none.
std::filesystem::path DraggedProject(const QMimeData& data) {
    for (const QUrl& url : data.urls()) {
        if (url.isLocalFile() && url.fileName().endsWith(".iv")) {
            return PathFromQt(url.toLocalFile());
        }
    }
    return {};
}

}  // namespace

MDI::MDI(Program& program)
    : program_(program),
      menu_(std::make_unique<MenuBar>(*menuBar())),
      statusLine_(std::make_unique<StatusLine>(*statusBar(), program.boxes)),
      windows_(new ChildWindows),
      panel_(new FrmCom(program, this)),
      hints_(new FrmHelp(this)) {
    Named(this, "MDI");
    setAcceptDrops(true);
    // The menu of docks would show the hint window behind the back of its menu item.
    setContextMenuPolicy(Qt::PreventContextMenu);
    setCentralWidget(windows_);
    setCorner(Qt::BottomRightCorner, Qt::RightDockWidgetArea);
    addDockWidget(Qt::RightDockWidgetArea, panel_);
    addDockWidget(Qt::BottomDockWidgetArea, hints_);
    LoadStartState(program_);
    AttachCommands(*this);
    program_.switchFocus = [this](bool backwards) { SwitchFocus(backwards); };
    connect(new QShortcut(QKeySequence("F4"), this), &QShortcut::activated, this,
            [this] { SwitchFocus(false); });
    // A maximised child window would put its own caption into the title.
    connect(this, &QWidget::windowTitleChanged, this, [this] { setWindowTitle(title_); });
    PlaceOnScreen();
    ShowTitle(kNewProject);
    ShowMode();
}

MDI::~MDI() = default;

void MDI::ShowMode() {
    const std::string_view wanted = ViewOf(program_.project.settings.Mode).window;
    for (const std::string_view name : {"FrmCel", "FrmTable", "FrmSin"}) {
        if (name != wanted) windows_->Close(name);
    }
    statusBar()->clearMessage();  // it names a cell of the drawing
    ShowOutcome();
    windows_->Open(
        wanted, [&] { return MakeModeWindow(wanted, program_); }, ChildWindows::Place::FillsArea);
    ShowSettings();
}

void MDI::ShowSettings() {
    menu_->ShowChecks(program_.project.settings, program_.shell);
    panel_->ShowSettings();
    statusLine_->ShowSettings(program_.project.settings);
    hints_->ShowHints(HintLines(program_.editor));
    hints_->setVisible(program_.shell.HintsShown);
}

void MDI::ShowNetwork() {
    ChildWindow* window = windows_->Find(ViewOf(program_.project.settings.Mode).window);
    if (window != nullptr) window->ShowNetwork();
}

void MDI::TakeEdits() {
    ChildWindow* window = windows_->Find(ViewOf(program_.project.settings.Mode).window);
    if (window != nullptr) window->TakeEdits();
}

void MDI::SwitchFocus(bool backwards) {
    const QWidget* holder = QApplication::focusWidget();
    if (holder != nullptr && !panel_->isAncestorOf(holder)) return panel_->TakeFocus(backwards);
    const QMdiSubWindow* frame = windows_->activeSubWindow();
    if (frame != nullptr) frame->widget()->setFocus(Qt::TabFocusReason);
}

void MDI::ShowTitle(std::string_view name) {
    // Qt takes the first pair of brackets round a star for the place of its own mark.
    title_ = ToQt(WindowTitle(name)).replace("[*]", "[*][*]");
    setWindowTitle(title_);
}

void MDI::ShowOutcome() {
    const auto found = program_.outcomes.find(program_.project.settings.Mode);
    if (found == program_.outcomes.end()) {
        statusLine_->HideOutcome();
    } else {
        statusLine_->ShowOutcome(found->second);
    }
}

void MDI::OpenFile(const std::filesystem::path& path) {
    FileForm form = StartFileForm(FilePurpose::Open, path.parent_path(), program_.project);
    ClickFile(form, path.filename().string(), program_.boxes);
    const auto unsaved = UnsavedText(program_.project);
    const bool left = ConfirmFileForm(form, program_.project, program_.boxes, program_.handOvers);
    if (left) KeepUnsaved(unsaved, program_.folder);
    program_.lastFolder = path.parent_path();
}

void MDI::dragEnterEvent(QDragEnterEvent* event) {
    if (!DraggedProject(*event->mimeData()).empty()) event->acceptProposedAction();
}

void MDI::dropEvent(QDropEvent* event) {
    event->acceptProposedAction();
    TakeEdits();
    OpenFile(DraggedProject(*event->mimeData()));
}

void MDI::closeEvent(QCloseEvent* event) {
    TakeEdits();
    KeepUnsaved(UnsavedText(program_.project), program_.folder);
    QMainWindow::closeEvent(event);
}

void MDI::PlaceOnScreen() {
    const QRect available = screen()->availableGeometry();
    const QSize room = available.size() - kFrameAllowance;
    resize(kPreferredSize.boundedTo(room));
    move(available.center().x() - width() / 2, available.top());
    if (size() != kPreferredSize) setWindowState(Qt::WindowMaximized);
}

}  // namespace idrova
