// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/panel/frm_com.h"

#include <QApplication>
#include <QCloseEvent>
#include <QFormLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QScrollArea>
#include <QSignalBlocker>
#include <QSlider>
#include <QVBoxLayout>

#include "editor/cell_click.h"
#include "editor/component_insertion.h"
#include "editor/deletion.h"
#include "editor/messages.h"
#include "physdata/fluids.h"
#include "physdata/pipe_settings.h"
#include "ui/kit/controls.h"
#include "ui/kit/form_parts.h"
#include "ui/kit/qt_text.h"
#include "ui/panel/components_frame.h"
#include "ui/panel/directions_frame.h"
#include "ui/panel/pipe_frame.h"
#include "ui/panel/pressures_frame.h"
#include "ui/program.h"

namespace idrova {

namespace {

QLabel* SettingLabel(const char* name) {
    QLabel* label = Named(PlainLabel({}), name);
    label->setWordWrap(true);
    return label;
}

}  // namespace

FrmCom::FrmCom(Program& program, QWidget* parent)
    : QDockWidget("Idrova - Commands", parent),
      program_(program),
      context_{program, [this] { ShowEdited(); }},
      pipeFrame_(new PipeFrame(context_)),
      pressuresFrame_(new PressuresFrame(context_)),
      directionsFrame_(new DirectionsFrame(context_)),
      componentsFrame_(new ComponentsFrame(context_)) {
    Named(this, "FrmCom");
    setAllowedAreas(Qt::RightDockWidgetArea | Qt::LeftDockWidgetArea);
    setFeatures(DockWidgetMovable);
    auto* content = new QWidget;
    auto* column = new QVBoxLayout(content);
    AddSettings(*column);
    AddFrames(*column);
    for (const NumberBox* box : content->findChildren<NumberBox*>()) {
        connect(box, &QLineEdit::editingFinished, this, [this] { program_.history.EndTyping(); });
    }
    column->addStretch(1);
    auto* scroller = new QScrollArea;
    scroller->setWidgetResizable(true);
    scroller->setFrameShape(QFrame::NoFrame);
    scroller->setFocusPolicy(Qt::NoFocus);  // it would show nothing of having the keyboard
    scroller->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroller->setWidget(content);
    scroller->setMinimumWidth(content->minimumSizeHint().width() + 20);
    auto* panel = new QWidget;
    auto* rows = new QVBoxLayout(panel);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->addWidget(scroller, 1);
    // On a low screen the frames scroll, while the buttons stay in sight.
    auto* buttons = new QVBoxLayout;
    buttons->setContentsMargins(9, 0, 9, 9);
    AddButtons(*buttons);
    rows->addLayout(buttons);
    setWidget(panel);
}

void FrmCom::AddSettings(QVBoxLayout& column) {
    fluidName_ = SettingLabel("FluidName");
    fluidProperties_ = SettingLabel("FluidProperties");
    roughness_ = SettingLabel("RoughnessLabel");
    auto* form = new QFormLayout;
    form->addRow("Fluid:", fluidName_);
    form->addRow("", fluidProperties_);
    form->addRow("Roughness [m]:", roughness_);
    column.addLayout(form);
}

void FrmCom::AddFrames(QVBoxLayout& column) {
    column.addWidget(pipeFrame_);
    column.addWidget(pressuresFrame_);
    column.addWidget(directionsFrame_);
    column.addWidget(componentsFrame_);
}

void FrmCom::AddButtons(QVBoxLayout& column) {
    deleteButton_ = CommandButton("Command9", "Delete pipes and components", [this] { Delete(); });
    dataButton_ = CommandButton("Command4", "Show/hidden data", [this] { SwitchData(); });
    calculateButton_ = CommandButton("Command1", "Calculate by graphic", [this] { calculate(); });
    calculateButton_->setShortcut(QKeySequence("F5"));
    calculateButton_->setStatusTip("Compute the network of the drawing or of the table (F5)");
    for (QPushButton* button : {deleteButton_, dataButton_, calculateButton_})
        column.addWidget(button);
    gridSlider_ = Named(new QSlider(Qt::Horizontal), "Slider1");
    gridSlider_->setRange(150, 450);
    gridSlider_->setValue(program_.project.Grid.CellWidth);
    gridSlider_->setTracking(false);
    connect(gridSlider_, &QSlider::valueChanged, this, [this] { RefuseGridDimension(); });
    auto* form = new QFormLayout;
    form->addRow(LabelFor(gridSlider_, "Grid dimension"), gridSlider_);
    column.addLayout(form);
}

void FrmCom::ShowState() {
    fluidName_->setText(ToQt(program_.project.settings.FluidName));
    fluidProperties_->setText(ToQt(FluidPropertyLabel(program_.project.settings)));
    roughness_->setText(
        ToQt(RoughnessLabel(program_.shell.roughnessItem, program_.project.settings.Roughness)));
    if (!isEdited_) context_.panel = ShowPipeData(program_.project, program_.editor);
    const RunRecord* record = RecordOf(program_);
    context_.sizing =
        record == nullptr ? SizingTexts() : SizingOf(*record, context_.panel.OnlyPipe());
    context_.resultsOld = ShowsOldResults(program_);
    ShowFrames();
    componentsFrame_->Show();
    ShowEnabling();
}

void FrmCom::ShowEdited() {
    const QScopedValueRollback edited(isEdited_, true);
    program_.changed();
}

void FrmCom::ShowComputed() {
    TakeComputed(ShowPipeData(program_.project, program_.editor), context_.panel);
    ShowEdited();
}

void FrmCom::TakeFocus(bool backwards) {
    const auto step = [backwards](const QWidget* from) {
        return backwards ? from->previousInFocusChain() : from->nextInFocusChain();
    };
    for (QWidget* next = step(this); next != this; next = step(next)) {
        const bool takes = (next->focusPolicy() & Qt::TabFocus) != 0 && next->isEnabled();
        if (takes && next->isVisible() && isAncestorOf(next)) {
            return next->setFocus(backwards ? Qt::BacktabFocusReason : Qt::TabFocusReason);
        }
    }
}

void FrmCom::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape && AbortByKey(program_.editor)) return program_.changed();
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    auto* button = qobject_cast<QPushButton*>(QApplication::focusWidget());
    if (!isReturn || button == nullptr) return QDockWidget::keyPressEvent(event);
    button->click();
}

void FrmCom::ShowFrames() {
    pipeFrame_->Show();
    pressuresFrame_->Show();
    directionsFrame_->Show();
}

void FrmCom::ShowEnabling() {
    const ModeView view = ViewOf(program_.project.settings.Mode);
    const bool frames = view.drawingTools && program_.editor.framesEnabled;
    pipeFrame_->setEnabled(frames && !context_.panel.pipes.empty());
    pressuresFrame_->setEnabled(frames && context_.panel.OnlyPipe() != 0);
    directionsFrame_->setEnabled(frames && context_.panel.OnlyPipe() != 0);
    componentsFrame_->setEnabled(view.drawingTools &&
                                 MayPlaceComponents(program_.project, program_.editor));
    dataButton_->setEnabled(view.drawingTools);
    deleteButton_->setEnabled(view.drawingTools);
    calculateButton_->setEnabled(view.calculate);
}

void FrmCom::SwitchData() {
    program_.editor.DataShown = !program_.editor.DataShown;
    program_.changed();
}

void FrmCom::Delete() {
    DeleteSelected(program_.project, program_.editor, program_.boxes, program_.changed);
    program_.changed();
}

void FrmCom::RefuseGridDimension() {
    const QSignalBlocker silent(gridSlider_);
    gridSlider_->setValue(program_.project.Grid.CellWidth);
    program_.boxes.Show(kFixedGridDimension);
}

void FrmCom::closeEvent(QCloseEvent* event) {
    event->ignore();
}

}  // namespace idrova
