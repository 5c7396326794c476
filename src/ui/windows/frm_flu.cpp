// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/windows/frm_flu.h"

#include <QCheckBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "base/number_text.h"
#include "physdata/fluid_commands.h"
#include "ui/kit/controls.h"
#include "ui/kit/form_parts.h"
#include "ui/kit/name_list.h"
#include "ui/kit/qt_text.h"
#include "ui/program.h"

namespace idrova {

FrmFlu::FrmFlu(Program& program)
    : ChildWindow("FrmFlu", "Idrova - Fluid"),
      program_(program),
      Combo1(new NameList("Combo1")),
      Label8(ValueLabel("Label8")),
      Text1(TextField("Text1")),
      Text6(TextField("Text6")),
      Label9(ValueLabel("Label9")),
      Text5(TextField("Text5")),
      Text3(TextField("Text3")),
      Text4(TextField("Text4")),
      Check1(Named(new QCheckBox("predefined"), "Check1")) {
    auto* column = new QVBoxLayout(this);
    column->addLayout(NameRow());
    column->addLayout(PropertyRows());
    column->addStretch(1);
    column->addLayout(Buttons());
    Connect();
    LoadFluids(program_.fluids, program_.folder, program_.boxes);
    ListNames(0);
    opened_ = ShowFluidInUse(program_.project.settings, program_.fluids);
    Show(opened_);
    Combo1->setEditText(ToQt(opened_.name));
    setFocusProxy(Combo1);
}

QBoxLayout* FrmFlu::NameRow() {
    Label8->setFixedWidth(Label8->fontMetrics().averageCharWidth() * 5);
    Label8->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
    Label8->setAlignment(Qt::AlignCenter);
    auto* row = new QHBoxLayout;
    row->addWidget(LabelFor(Combo1, "Name"));
    row->addWidget(Combo1, 1);
    row->addWidget(Label8);
    return row;
}

QGridLayout* FrmFlu::PropertyRows() {
    auto* rows = new FieldGrid;
    rows->AddField("Density [kg/mc]", Text1);
    rows->AddField("Dynamic viscosity", Text6, " Ns/mq", "=cinematic viscosity x density");
    rows->AddValue("Cinematic viscosity", Label9);
    rows->AddField("Compressibility", Text5, "", "only if the fluid is a compressible gas");
    rows->AddField("Specific heat [J/kg/K]", Text3);
    rows->AddField("Conductivity [W/m/K]", Text4);
    rows->AddControl(Check1);
    return rows;
}

QBoxLayout* FrmFlu::Buttons() {
    QPushButton* use = CommandButton("Command1", "Use", [this] { Command1_Click(); });
    QPushButton* save = CommandButton("Command2", "Save", [this] { Command2_Click(); });
    QPushButton* remove = CommandButton("Command3", "Delete", [this] { Command3_Click(); });
    QPushButton* saveAs = CommandButton("Command4", "Save as", [this] { Command4_Click(); });
    SetDefaultButton(use);
    return ButtonRow({use, save, remove, saveAs});
}

void FrmFlu::Connect() {
    OnChosen(*Combo1, [this](int position) { Combo1_Click(position); });
    connect(Text6, &QLineEdit::textChanged, this, [this] { Text6_Change(); });
    // Without a mouse the field is left instead of clicked.
    connect(Text1, &QLineEdit::editingFinished, this, [this] { Text1_Click(); });
    Text1->installEventFilter(this);
}

FluidFields FrmFlu::Fields() const {
    return {.name = Combo1->Text(),
            .density = FromQt(Text1->text()),
            .viscosity = FromQt(Text6->text()),
            .compressibility = FromQt(Text5->text()),
            .specificHeat = FromQt(Text3->text()),
            .conductivity = FromQt(Text4->text())};
}

void FrmFlu::ListNames(int slot) {
    Combo1->Refill(RecordNames(program_.fluids), slot - 1);
    selected_ = slot;
    Label8->setText(slot > 0 ? ToQt(GeneralText(slot)) : QString());
}

void FrmFlu::Show(const FluidFields& fields) {
    Text1->setText(ToQt(fields.density));
    Text6->setText(ToQt(fields.viscosity));
    Text3->setText(ToQt(fields.specificHeat));
    Text4->setText(ToQt(fields.conductivity));
    Text5->setText(ToQt(fields.compressibility));
}

void FrmFlu::Combo1_Click(int position) {
    selected_ = position + 1;
    Show(ShowFluid(program_.fluids[selected_]));
    Label8->setText(ToQt(GeneralText(selected_)));
    Text6_Change();  // the viscosity may be that of the fluid before, the density is not
}

bool FrmFlu::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseButtonRelease) Text1_Click();
    return ChildWindow::eventFilter(watched, event);
}

void FrmFlu::Text1_Click() {
    if (const auto value = KinematicViscosityOnClick(Fields())) Label9->setText(ToQt(*value));
}

void FrmFlu::Text6_Change() {
    if (const auto value = KinematicViscosityOnChange(Fields())) Label9->setText(ToQt(*value));
}

void FrmFlu::Command1_Click() {
    if (const int meant = MeantFluid(program_.fluids, Fields(), opened_); meant > 0) {
        ListNames(meant);
        return Combo1_Click(meant - 1);
    }
    if (!UseFluid(program_.project, selected_, Fields(), program_.boxes)) return;
    program_.changed();
    TellVolumeFlows(program_.project, program_.boxes);
    CloseWindow();
}

void FrmFlu::Command2_Click() {
    const EditOutcome outcome =
        SaveFluid(program_.fluids, selected_, Fields(), program_.folder, program_.boxes);
    if (outcome == EditOutcome::Done) ListNames(selected_);
}

void FrmFlu::Command3_Click() {
    const int slot = ChosenSlot(program_.fluids, Combo1->currentIndex(), Combo1->Text());
    const EditOutcome outcome = DeleteFluid(program_.fluids, slot, program_.folder, program_.boxes);
    if (outcome == EditOutcome::Done) ListNames(0);
}

void FrmFlu::Command4_Click() {
    const EditOutcome outcome = SaveFluidAs(program_.fluids, Fields(), Check1->isChecked(),
                                            program_.folder, program_.boxes);
    if (outcome == EditOutcome::Done) ListNames(program_.fluids.count);
}

}  // namespace idrova
