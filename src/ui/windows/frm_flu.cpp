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
      names_(new NameList("Combo1")),
      number_(ValueLabel("Label8")),
      density_(TextField("Text1")),
      viscosity_(TextField("Text6")),
      kinematicViscosity_(ValueLabel("Label9")),
      compressibility_(TextField("Text5")),
      specificHeat_(TextField("Text3")),
      conductivity_(TextField("Text4")),
      predefined_(Named(new QCheckBox("predefined"), "Check1")) {
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
    names_->setEditText(ToQt(opened_.name));
    setFocusProxy(names_);
}

QBoxLayout* FrmFlu::NameRow() {
    number_->setFixedWidth(number_->fontMetrics().averageCharWidth() * 5);
    number_->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
    number_->setAlignment(Qt::AlignCenter);
    auto* row = new QHBoxLayout;
    row->addWidget(LabelFor(names_, "Name"));
    row->addWidget(names_, 1);
    row->addWidget(number_);
    return row;
}

QGridLayout* FrmFlu::PropertyRows() {
    auto* rows = new FieldGrid;
    rows->AddField("Density [kg/mc]", density_);
    rows->AddField("Dynamic viscosity", viscosity_, " Ns/mq", "=cinematic viscosity x density");
    rows->AddValue("Cinematic viscosity", kinematicViscosity_);
    rows->AddField("Compressibility", compressibility_, "",
                   "only if the fluid is a compressible gas");
    rows->AddField("Specific heat [J/kg/K]", specificHeat_);
    rows->AddField("Conductivity [W/m/K]", conductivity_);
    rows->AddControl(predefined_);
    return rows;
}

QBoxLayout* FrmFlu::Buttons() {
    QPushButton* use = CommandButton("Command1", "Use", [this] { Use(); });
    QPushButton* save = CommandButton("Command2", "Save", [this] { Save(); });
    QPushButton* remove = CommandButton("Command3", "Delete", [this] { Delete(); });
    QPushButton* saveAs = CommandButton("Command4", "Save as", [this] { SaveAs(); });
    SetDefaultButton(use);
    return ButtonRow({use, save, remove, saveAs});
}

void FrmFlu::Connect() {
    OnChosen(*names_, [this](int position) { Choose(position); });
    connect(viscosity_, &QLineEdit::textChanged, this, [this] { ViscosityChanged(); });
    // Without a mouse the field is left instead of clicked.
    connect(density_, &QLineEdit::editingFinished, this, [this] { DensityClicked(); });
    density_->installEventFilter(this);
}

FluidFields FrmFlu::Fields() const {
    return {.name = names_->Text(),
            .density = FromQt(density_->text()),
            .viscosity = FromQt(viscosity_->text()),
            .compressibility = FromQt(compressibility_->text()),
            .specificHeat = FromQt(specificHeat_->text()),
            .conductivity = FromQt(conductivity_->text())};
}

void FrmFlu::ListNames(int slot) {
    names_->Refill(RecordNames(program_.fluids), slot - 1);
    selected_ = slot;
    number_->setText(slot > 0 ? ToQt(GeneralText(slot)) : QString());
}

void FrmFlu::Show(const FluidFields& fields) {
    density_->setText(ToQt(fields.density));
    viscosity_->setText(ToQt(fields.viscosity));
    specificHeat_->setText(ToQt(fields.specificHeat));
    conductivity_->setText(ToQt(fields.conductivity));
    compressibility_->setText(ToQt(fields.compressibility));
}

void FrmFlu::Choose(int position) {
    selected_ = position + 1;
    Show(ShowFluid(program_.fluids[selected_]));
    number_->setText(ToQt(GeneralText(selected_)));
    ViscosityChanged();  // the viscosity may be that of the fluid before, the density is not
}

bool FrmFlu::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseButtonRelease) DensityClicked();
    return ChildWindow::eventFilter(watched, event);
}

void FrmFlu::DensityClicked() {
    if (const auto value = KinematicViscosityOnClick(Fields()))
        kinematicViscosity_->setText(ToQt(*value));
}

void FrmFlu::ViscosityChanged() {
    if (const auto value = KinematicViscosityOnChange(Fields()))
        kinematicViscosity_->setText(ToQt(*value));
}

void FrmFlu::Use() {
    if (const int meant = MeantFluid(program_.fluids, Fields(), opened_); meant > 0) {
        ListNames(meant);
        return Choose(meant - 1);
    }
    if (!UseFluid(program_.project, selected_, Fields(), program_.boxes)) return;
    program_.changed();
    TellVolumeFlows(program_.project, program_.boxes);
    CloseWindow();
}

void FrmFlu::Save() {
    const EditOutcome outcome =
        SaveFluid(program_.fluids, selected_, Fields(), program_.folder, program_.boxes);
    if (outcome == EditOutcome::Done) ListNames(selected_);
}

void FrmFlu::Delete() {
    const int slot = ChosenSlot(program_.fluids, names_->currentIndex(), names_->Text());
    const EditOutcome outcome = DeleteFluid(program_.fluids, slot, program_.folder, program_.boxes);
    if (outcome == EditOutcome::Done) ListNames(0);
}

void FrmFlu::SaveAs() {
    const EditOutcome outcome = SaveFluidAs(program_.fluids, Fields(), predefined_->isChecked(),
                                            program_.folder, program_.boxes);
    if (outcome == EditOutcome::Done) ListNames(program_.fluids.count);
}

}  // namespace idrova
