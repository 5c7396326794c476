// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/drawing/frm_cel.h"

#include <QApplication>
#include <QGridLayout>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QStatusTipEvent>

#include "editor/component_insertion.h"
#include "editor/grid_view.h"
#include "editor/plant_drawing.h"
#include "ui/drawing/plant_scene.h"
#include "ui/drawing/plant_view.h"
#include "ui/kit/controls.h"
#include "ui/program.h"

namespace idrova {

/// What the drawing was last made from.
struct FrmCel::Shown {
    Project project;
    Editor editor;
};

FrmCel::~FrmCel() = default;

FrmCel::FrmCel(Program& program)
    : ChildWindow("FrmCel", "Idrova - plant drawing"),
      program_(program),
      scene_(new PlantScene(program.project, program.folder)),
      view_(Named(new PlantView(scene_, program.project), "Drawing")),
      ScrX(Bar("ScrX", Qt::Horizontal)),
      ScrY(Bar("ScrY", Qt::Vertical)) {
    scene_->setParent(this);
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(0);
    grid->addWidget(view_, 0, 0);
    grid->addWidget(ScrY, 0, 1);
    grid->addWidget(ScrX, 1, 0);
    ScrX->setAccessibleName("First column shown");
    ScrY->setAccessibleName("First row shown");
    setFocusProxy(view_);
    StayOnEscape();
    ConnectView();
    ShowState();
}

QScrollBar* FrmCel::Bar(const char* name, Qt::Orientation orientation) {
    auto* bar = Named(new QScrollBar(orientation), name);
    bar->setRange(1, LastScroll(program_.project));
    bar->setPageStep(program_.project.GridSize / 2);
    bar->setFocusPolicy(Qt::NoFocus);  // the whole grid is in sight; a bar does not show its focus
    connect(bar, &QScrollBar::valueChanged, this, [this] { Scrolled(); });
    return bar;
}

void FrmCel::ConnectView() {
    view_->press = [this](int place, MouseButton button) { Img_MouseDown(place, button); };
    view_->hover = [this](int place) { ShowPlace(place); };
    view_->moveCursor = [this](int place) { scene_->ShowCursor(place); };
    view_->abort = [this] { Abort(); };
    view_->turnPump = [this] {
        TurnSelectedPump(program_.project, program_.editor);
        program_.changed();
    };
}

void FrmCel::ShowState() {
    const Project& project = program_.project;
    const Editor& editor = program_.editor;
    if (shown_ == nullptr) {
        shown_ = std::make_unique<Shown>();
    } else if (shown_->editor == editor && shown_->project == project) {
        return;
    }
    shown_->project = project;
    shown_->editor = editor;
    const QSignalBlocker silentX(ScrX);
    const QSignalBlocker silentY(ScrY);
    ScrX->setValue(editor.ScrX);
    ScrY->setValue(editor.ScrY);
    DrawPlant(project, editor, *scene_);
}

void FrmCel::Img_MouseDown(int place, MouseButton button) {
    CellClick(program_.project, program_.editor, place, button, program_.boxes);
    program_.changed();
}

bool FrmCel::focusNextPrevChild(bool next) {
    program_.switchFocus(!next);
    return true;
}

void FrmCel::Scrolled() {
    ScrollDrawing(program_.project, program_.editor, ScrX->value(), ScrY->value());
    program_.changed();
}

void FrmCel::Abort() {
    AbortByKey(program_.editor);
    program_.changed();
}

void FrmCel::ShowPlace(int place) {
    const int cell = CellShownAt(program_.project, program_.editor, place);
    if (cell == HoverCell) return;
    HoverCell = cell;
    const int size = program_.project.GridSize;
    const QString tip = cell == 0 ? QString()
                                  : QString("Column %1, row %2 (cell %3)")
                                        .arg((cell - 1) % size + 1)
                                        .arg((cell - 1) / size + 1)
                                        .arg(cell);
    QStatusTipEvent told(tip);
    QApplication::sendEvent(this, &told);
}

}  // namespace idrova
