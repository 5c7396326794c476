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
      Combo1(List("Combo1", "Kind of component")),
      Combo3(List("Combo3", "Component")),
      Command3(CommandButton("Command3", "Insert component", [this] { Command3_Click(); })),
      Command2(CommandButton("Command2", "Roate pump", [this] { Command2_Click(); })),
      Timer1(Named(new QTimer(this), "Timer1")) {
    Named(this, "Frame6");
    Combo1->addItems({"Pump", "Concentrated loss      "});
    OnChosen(*Combo1, [this](int position) { Combo1_Click(position); });
    OnChosen(*Combo3, [this](int position) { Combo3_Click(position); });
    Command3->setStatusTip("Then click the cell of a pipe");
    Command2->setStatusTip("The selected pump delivers the other way round (R)");
    Command2->setVisible(false);
    Timer1->setInterval(kBlink);
    connect(Timer1, &QTimer::timeout, this, [this] { Timer1_Timer(); });
    setLayout(new QVBoxLayout);
    for (QWidget* control : {static_cast<QWidget*>(Combo1), static_cast<QWidget*>(Combo3),
                             static_cast<QWidget*>(Command3), static_cast<QWidget*>(Command2)}) {
        layout()->addWidget(control);
    }
}

void ComponentsFrame::Combo1_Click(int position) {
    Program& program = context_.program;
    const CellKind kind = position == 0 ? CellKind::Pump : CellKind::Loss;
    if (kind == program.editor.componentKind) return;
    ChooseComponentKind(program.editor, program.components, kind);
    program.changed();
}

void ComponentsFrame::Combo3_Click(int position) {
    Program& program = context_.program;
    ChooseComponentAt(program.editor, program.components, position);
}

void ComponentsFrame::Command3_Click() {
    Program& program = context_.program;
    ArmInsertion(program.editor, program.boxes);
    program.changed();
}

void ComponentsFrame::Command2_Click() {
    Program& program = context_.program;
    TurnSelectedPump(program.project, program.editor);
    program.changed();
}

void ComponentsFrame::Show() {
    const Program& program = context_.program;
    ShowChoice();
    const CellRec& selected = program.project.Cells[program.editor.selectedComponent];
    Command2->setVisible(selected.Placed && selected.Kind == CellKind::Pump);
    if (!IsArmed(program.editor)) {
        Timer1->stop();
        SetLit(false);
    } else if (!Timer1->isActive()) {
        Timer1->start();
    }
}

void ComponentsFrame::ShowChoice() {
    const Editor& editor = context_.program.editor;
    const QSignalBlocker silentKind(Combo1);
    const QSignalBlocker silentNames(Combo3);
    Combo1->setCurrentIndex(editor.componentKind == CellKind::Pump ? 0 : 1);
    Combo3->clear();
    for (const std::string& name :
         ComponentNames(context_.program.components, editor.componentKind)) {
        Combo3->addItem(ToQt(name));
    }
    Combo3->setCurrentIndex(editor.componentPosition);
}

void ComponentsFrame::Timer1_Timer() {
    SetLit(!lit_);
}

void ComponentsFrame::SetLit(bool lit) {
    lit_ = lit;
    Command3->setStyleSheet(lit ? "background-color: #ffff00; color: black" : "");
}

}  // namespace idrova
