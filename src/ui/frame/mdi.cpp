// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/frame/mdi.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QScreen>
#include <QShortcut>
#include <QStatusBar>
#include <QUrl>
#include <QVBoxLayout>

#include "model/version.h"
#include "physdata/fluids.h"
#include "projectfile/unsaved_copy.h"
#include "results/limit_notes.h"
#include "shell/messages.h"
#include "ui/drawing/frm_cel.h"
#include "ui/frame/commands.h"
#include "ui/frame/compute_at_once.h"
#include "ui/frame/edit_commands.h"
#include "ui/frame/file_commands.h"
#include "ui/frame/menu_bar.h"
#include "ui/frame/recent_menu.h"
#include "ui/frame/settings_bar.h"
#include "ui/frame/status_line.h"
#include "ui/frame/tool_bar.h"
#include "ui/frame/view_commands.h"
#include "ui/kit/child_window.h"
#include "ui/kit/child_windows.h"
#include "ui/kit/controls.h"
#include "ui/kit/qt_text.h"
#include "ui/panel/frm_com.h"
#include "ui/program.h"
#include "ui/table/frm_table.h"
#include "ui/windows/frm_help.h"
#include "ui/windows/frm_prob.h"
#include "ui/windows/frm_sin.h"

namespace idrova {

namespace {

constexpr QSize kPreferredSize(1360, 1080);
constexpr QSize kFrameAllowance(16, 48);  ///< what a desktop puts round a window

void LoadStartState(Program& program) {
    InitialiseProject(program.project);
    LoadCurrentFluid(program.project.settings, program.fluids, program.folder, program.boxes);
    RereadComponents(program);
}

ChildWindow* MakeModeWindow(WorkMode mode, Program& program) {
    switch (mode) {
        case WorkMode::Table:
            return new FrmTable(program);
        case WorkMode::SinglePipe:
            return new FrmSin(program);
        case WorkMode::Graphic:
            break;
    }
    return new FrmCel(program);
}

/// The flows of the record are counted as the drawing now counts them.
void ShowRunOfDrawing(Program& program) {
    const auto record = program.records.find(WorkMode::Graphic);
    if (record != program.records.end()) TurnFlowsWith(program.project, record->second);
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
      recent_(std::make_unique<RecentMenu>(
          *menuBar()->findChild<QMenu*>("Recenti"),
          [this](const std::filesystem::path& file) { OpenRecentFile(*this, file); })),
      statusLine_(std::make_unique<StatusLine>(*statusBar(), [this] { ShowProblems(); })),
      toolBar_(new ToolBar(*menuBar(), [this] { panel_->calculate(); })),
      settingsBar_(new SettingsBar(program)),
      windows_(new ChildWindows),
      panel_(new FrmCom(program, this)),
      hints_(new FrmHelp(program, this)),
      problems_(new FrmProb(program, this)),
      atOnce_(std::make_unique<ComputeAtOnce>(program, [this] { panel_->ShowComputed(); })) {
    Named(this, "MDI");
    setAcceptDrops(true);
    // The menu of docks would show the hint window behind the back of its menu item.
    setContextMenuPolicy(Qt::PreventContextMenu);
    auto* centre = new QWidget;
    auto* column = new QVBoxLayout(centre);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(settingsBar_);
    column->addWidget(windows_, 1);
    setCentralWidget(centre);
    setCorner(Qt::BottomRightCorner, Qt::RightDockWidgetArea);
    addToolBar(toolBar_);
    addDockWidget(Qt::RightDockWidgetArea, panel_);
    addDockWidget(Qt::BottomDockWidgetArea, hints_);
    addDockWidget(Qt::BottomDockWidgetArea, problems_, Qt::Horizontal);
    LoadStartState(program_);
    AttachCommands(*this);
    program_.changed = [this] { ShowState(); };
    program_.switchFocus = [this](bool backwards) { SwitchFocus(backwards); };
    connect(new QShortcut(QKeySequence("F4"), this), &QShortcut::activated, this,
            [this] { SwitchFocus(false); });
    // A maximised child window would put its own caption into the title.
    connect(this, &QWidget::windowTitleChanged, this, [this] { setWindowTitle(title_); });
    PlaceOnScreen();
    OpenModeWindow();
    ShowState();
}

MDI::~MDI() = default;

void MDI::OpenModeWindow() {
    const WorkMode mode = program_.project.settings.Mode;
    const std::string_view wanted = ViewOf(mode).window;
    for (const std::string_view name : {"FrmCel", "FrmTable", "FrmSin"}) {
        if (name != wanted) windows_->Close(name);
    }
    if (mode != WorkMode::Graphic) windows_->Close("FrmVel");  // it acts on the drawing
    statusBar()->clearMessage();                               // it names a cell of the drawing
    windows_->Open(
        wanted, [&] { return MakeModeWindow(mode, program_); }, ChildWindows::Place::FillsArea);
}

void MDI::ShowState() {
    const Settings& settings = program_.project.settings;
    ShowRunOfDrawing(program_);
    ShowView(program_);
    menu_->ShowState(settings, program_.shell);
    ShowSteps(*this);
    toolBar_->setVisible(program_.shell.ToolBarShown);
    toolBar_->ShowState(ViewOf(settings.Mode).calculate);
    settingsBar_->ShowState();
    panel_->ShowState();
    statusLine_->ShowSettings(settings);
    ShowOutcome();
    hints_->ShowState();
    problems_->ShowState();
    ShowTitle();
    windows_->ShowState();
    atOnce_->ShowState();
}

void MDI::ShowOutcome() {
    const RunRecord* record = RecordOf(program_);
    if (record == nullptr) return statusLine_->HideOutcome();
    statusLine_->ShowOutcome(HeldAgainst(program_.limits, *record),
                             ResultsAreOld(program_) ? ResultAge::OutOfDate : ResultAge::Current);
}

void MDI::Say(const std::string& words) {
    statusLine_->Say(words);
}

void MDI::TakeEdits() {
    ChildWindow* window = windows_->Find(ViewOf(program_.project.settings.Mode).window);
    if (window != nullptr) window->TakeEdits();
}

void MDI::ShowProblems() {
    constexpr int height = 120;  // five of them
    problems_->Open();
    resizeDocks({hints_, problems_}, {1, 1}, Qt::Horizontal);
    resizeDocks({problems_}, {height}, Qt::Vertical);
}

void MDI::SwitchFocus(bool backwards) {
    const QWidget* holder = QApplication::focusWidget();
    if (holder != nullptr && !panel_->isAncestorOf(holder)) return panel_->TakeFocus(backwards);
    const QMdiSubWindow* frame = windows_->activeSubWindow();
    if (frame != nullptr) frame->widget()->setFocus(Qt::TabFocusReason);
}

void MDI::ShowTitle() {
    // Qt takes the first pair of brackets round a star for the place of its own mark.
    title_ = ToQt(WindowTitle(program_.titleName)).replace("[*]", "[*][*]");
    setWindowTitle(title_);
}

void MDI::dragEnterEvent(QDragEnterEvent* event) {
    if (!DraggedProject(*event->mimeData()).empty()) event->acceptProposedAction();
}

void MDI::dropEvent(QDropEvent* event) {
    event->acceptProposedAction();
    TakeEdits();
    OpenFile(*this, DraggedProject(*event->mimeData()));
}

void MDI::closeEvent(QCloseEvent* event) {
    TakeEdits();
    const Result<std::string> kept = KeepUnsaved(UnsavedText(program_.project), program_.folder);
    if (!kept) program_.boxes.Show({kept.Error(), kExitQuestion.title});
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
