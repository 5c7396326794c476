// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/panel/components_frame.h"

#include <QComboBox>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTimer>
#include <QVBoxLayout>

#include "editor/component_insertion.h"
#include "ui/kit/controls.h"
#include "ui/kit/form_parts.h"
#include "ui/kit/name_list.h"
#include "ui/kit/qt_text.h"
#include "ui/program.h"

namespace idrova {

namespace {

constexpr int kBlink = 200;  ///< ms

QComboBox* List(const char* name, const QString& accessibleName) {
    auto* list = Named(new QComboBox, name);
    list->setAccessibleName(accessibleName);
    list->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    list->setMinimumContentsLength(12);
    return list;
}

}  // namespace

ComponentsFrame::ComponentsFrame(PanelContext& context)
    : QGroupBox("Components"),
      context_(context),
      kinds_(List("Combo1", "Kind of component")),
      names_(List("Combo3", "Component")),
      insertButton_(CommandButton("Command3", "Insert component", [this] { Insert(); })),
      turnButton_(CommandButton("Command2", "Roate pump", [this] { TurnPump(); })),
      blinkTimer_(Named(new QTimer(this), "Timer1")) {
    Named(this, "Frame6");
    kinds_->addItems({"Pump", "Concentrated loss      "});
    OnChosen(*kinds_, [this](int position) { ChooseKind(position); });
    OnChosen(*names_, [this](int position) { ChooseName(position); });
    insertButton_->setStatusTip("Then click the cell of a pipe");
    turnButton_->setStatusTip("The selected pump delivers the other way round (R)");
    turnButton_->setVisible(false);
    blinkTimer_->setInterval(kBlink);
    connect(blinkTimer_, &QTimer::timeout, this, [this] { Blink(); });
    setLayout(new QVBoxLayout);
    layout()->setContentsMargins(kFrameMargins);
    layout()->setSpacing(kRowSpacing);
    for (QWidget* control :
         {static_cast<QWidget*>(kinds_), static_cast<QWidget*>(names_),
          static_cast<QWidget*>(insertButton_), static_cast<QWidget*>(turnButton_)}) {
        layout()->addWidget(control);
    }
}

void ComponentsFrame::ChooseKind(int position) {
    Program& program = context_.program;
    const CellKind kind = position == 0 ? CellKind::Pump : CellKind::Loss;
    if (kind == program.editor.componentKind) return;
    ChooseComponentKind(program.editor, program.components, kind);
    program.changed();
}

void ComponentsFrame::ChooseName(int position) {
    Program& program = context_.program;
    ChooseComponentAt(program.editor, program.components, position);
}

void ComponentsFrame::Insert() {
    Program& program = context_.program;
    ArmInsertion(program.project, program.editor, program.boxes);
    program.changed();
}

void ComponentsFrame::TurnPump() {
    Program& program = context_.program;
    TurnSelectedPump(program.project, program.editor);
    program.changed();
}

void ComponentsFrame::Show() {
    const Program& program = context_.program;
    ShowChoice();
    const CellRec& selected = program.project.Cells[program.editor.selectedComponent];
    turnButton_->setVisible(selected.Placed && selected.Kind == CellKind::Pump);
    if (!IsArmed(program.editor)) {
        blinkTimer_->stop();
        SetLit(false);
    } else if (!blinkTimer_->isActive()) {
        blinkTimer_->start();
    }
}

void ComponentsFrame::ShowChoice() {
    const Editor& editor = context_.program.editor;
    const QSignalBlocker silentKind(kinds_);
    const QSignalBlocker silentNames(names_);
    kinds_->setCurrentIndex(editor.componentKind == CellKind::Pump ? 0 : 1);
    names_->clear();
    for (const std::string& name :
         ComponentNames(context_.program.components, editor.componentKind)) {
        names_->addItem(ToQt(name));
    }
    names_->setCurrentIndex(editor.componentPosition);
}

void ComponentsFrame::Blink() {
    SetLit(!lit_);
}

void ComponentsFrame::SetLit(bool lit) {
    lit_ = lit;
    insertButton_->setStyleSheet(lit ? "background-color: #ffff00; color: black" : "");
}

}  // namespace idrova
