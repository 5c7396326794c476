// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/windows/frm_percon.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "editor/component_insertion.h"
#include "physdata/component_commands.h"
#include "ui/kit/controls.h"
#include "ui/kit/form_parts.h"
#include "ui/kit/name_list.h"
#include "ui/kit/qt_text.h"
#include "ui/program.h"

namespace idrova {

FrmPerCon::FrmPerCon(Program& program)
    : ChildWindow("FrmPerCon", "Idrova - Concentrated drop"),
      program_(program),
      names_(new NameList("Combo1")),
      options_{Named(new QRadioButton("Coefficient"), "Option1_0"),
               Named(new QRadioButton("Loss"), "Option1_1")},
      coefficient_(TextField("Text1")),
      fixedDrop_(TextField("Text2")),
      milliBar_(ValueLabel("Label2")) {
    auto* column = new QVBoxLayout(this);
    column->addLayout(Rows());
    column->addStretch(1);
    column->addLayout(Buttons());
    Connect();
    Load();
    setFocusProxy(names_);
}

QGridLayout* FrmPerCon::Rows() {
    coefficient_->setAccessibleName("Coefficient");
    fixedDrop_->setAccessibleName("Loss [Pa]");
    auto* rows = new FieldGrid;
    rows->AddField("Name", names_);
    rows->AddControl(options_[0], coefficient_, PlainLabel({}));
    rows->AddControl(options_[1], fixedDrop_, Named(PlainLabel("[Pa]"), "Label1"));
    rows->AddControl(PlainLabel({}), milliBar_, Named(PlainLabel("[mbar]"), "Label3"));
    return rows;
}

QBoxLayout* FrmPerCon::Buttons() {
    QPushButton* save = CommandButton("Command2", "Save", [this] { Save(); });
    QPushButton* remove = CommandButton("Command3", "Delete", [this] { Delete(); });
    SetDefaultButton(save);
    return ButtonRow({save, remove});
}

void FrmPerCon::Connect() {
    OnChosen(*names_, [this](int position) { Choose(position); });
    for (const LossOption option : {LossOption::Coefficient, LossOption::FixedDrop}) {
        QRadioButton* button = options_[static_cast<int>(option)];
        connect(button, &QRadioButton::toggled, this, [this, option](bool on) {
            if (on) ChooseOption(option);
        });
        // Typing into a field chooses its option: a value in the other one would be forgotten.
        QLineEdit* field = option == LossOption::Coefficient ? coefficient_ : fixedDrop_;
        connect(field, &QLineEdit::textEdited, button, [button] { button->setChecked(true); });
    }
    connect(fixedDrop_, &QLineEdit::textChanged, this, [this] { ShowMilliBar(); });
}

LossFields FrmPerCon::Fields() const {
    return {.name = names_->Text(),
            .coefficient = FromQt(coefficient_->text()),
            .fixedDrop = FromQt(fixedDrop_->text()),
            .option = options_[1]->isChecked() ? LossOption::FixedDrop : LossOption::Coefficient};
}

void FrmPerCon::Show(const LossFields& fields) {
    options_[static_cast<int>(fields.option)]->setChecked(true);
    coefficient_->setText(ToQt(fields.coefficient));
    fixedDrop_->setText(ToQt(fields.fixedDrop));
}

void FrmPerCon::Load() {
    names_->Refill(RecordNames(program_.components.losses));
    Show({});
    milliBar_->clear();  // emptying a field has filled it
}

void FrmPerCon::Choose(int position) {
    const LossDb& losses = program_.components.losses;
    if (!losses.Holds(position + 1)) return;
    LossFields fields = Fields();
    ShowLoss(fields, losses[position + 1]);
    Show(fields);
}

void FrmPerCon::ChooseOption(LossOption option) {
    LossFields fields = Fields();
    SelectOption(fields, option);
    Show(fields);
}

void FrmPerCon::ShowMilliBar() {
    milliBar_->setText(ToQt(MilliBarLabel(Fields())));
}

void FrmPerCon::Save() {
    const EditOutcome outcome =
        SaveLoss(program_.components, Fields(), program_.folder, program_.boxes);
    if (outcome == EditOutcome::Refused) return;
    Load();
    RefreshComponentChoice(program_.editor, program_.components);
    program_.changed();
}

void FrmPerCon::Delete() {
    const int slot = ChosenSlot(program_.components.losses, names_->currentIndex(), names_->Text());
    const EditOutcome outcome =
        DeleteLoss(program_.components, slot, program_.folder, program_.boxes);
    if (outcome != EditOutcome::Done) return;
    Load();
    RefreshComponentChoice(program_.editor, program_.components);
    program_.changed();
}

}  // namespace idrova
