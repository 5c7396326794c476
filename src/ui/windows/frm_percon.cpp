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
      Combo1(new NameList("Combo1")),
      Option1{Named(new QRadioButton("Coefficient"), "Option1_0"),
              Named(new QRadioButton("Loss"), "Option1_1")},
      Text1(TextField("Text1")),
      Text2(TextField("Text2")),
      Label2(ValueLabel("Label2")) {
    auto* column = new QVBoxLayout(this);
    column->addLayout(Rows());
    column->addStretch(1);
    column->addLayout(Buttons());
    Connect();
    Load();
    setFocusProxy(Combo1);
}

QGridLayout* FrmPerCon::Rows() {
    Text1->setAccessibleName("Coefficient");
    Text2->setAccessibleName("Loss [Pa]");
    auto* rows = new FieldGrid;
    rows->AddField("Name", Combo1);
    rows->AddControl(Option1[0], Text1, PlainLabel({}));
    rows->AddControl(Option1[1], Text2, Named(PlainLabel("[Pa]"), "Label1"));
    rows->AddControl(PlainLabel({}), Label2, Named(PlainLabel("[mbar]"), "Label3"));
    return rows;
}

QBoxLayout* FrmPerCon::Buttons() {
    QPushButton* save = CommandButton("Command2", "Save", [this] { Command2_Click(); });
    QPushButton* remove = CommandButton("Command3", "Delete", [this] { Command3_Click(); });
    SetDefaultButton(save);
    return ButtonRow({save, remove});
}

void FrmPerCon::Connect() {
    OnChosen(*Combo1, [this](int position) { Combo1_Click(position); });
    for (const LossOption option : {LossOption::Coefficient, LossOption::FixedDrop}) {
        QRadioButton* button = Option1[static_cast<int>(option)];
        connect(button, &QRadioButton::toggled, this, [this, option](bool on) {
            if (on) Option1_Click(option);
        });
        // Typing into a field chooses its option: a value in the other one would be forgotten.
        QLineEdit* field = option == LossOption::Coefficient ? Text1 : Text2;
        connect(field, &QLineEdit::textEdited, button, [button] { button->setChecked(true); });
    }
    connect(Text2, &QLineEdit::textChanged, this, [this] { Text2_Change(); });
}

LossFields FrmPerCon::Fields() const {
    return {.name = Combo1->Text(),
            .coefficient = FromQt(Text1->text()),
            .fixedDrop = FromQt(Text2->text()),
            .option = Option1[1]->isChecked() ? LossOption::FixedDrop : LossOption::Coefficient};
}

void FrmPerCon::Show(const LossFields& fields) {
    Option1[static_cast<int>(fields.option)]->setChecked(true);
    Text1->setText(ToQt(fields.coefficient));
    Text2->setText(ToQt(fields.fixedDrop));
}

void FrmPerCon::Load() {
    Combo1->Refill(RecordNames(program_.components.losses));
    Show({});
    Label2->clear();  // emptying a field has filled it
}

void FrmPerCon::Combo1_Click(int position) {
    const LossDb& losses = program_.components.losses;
    if (!losses.Holds(position + 1)) return;
    LossFields fields = Fields();
    ShowLoss(fields, losses[position + 1]);
    Show(fields);
}

void FrmPerCon::Option1_Click(LossOption option) {
    LossFields fields = Fields();
    SelectOption(fields, option);
    Show(fields);
}

void FrmPerCon::Text2_Change() {
    Label2->setText(ToQt(MilliBarLabel(Fields())));
}

void FrmPerCon::Command2_Click() {
    const EditOutcome outcome =
        SaveLoss(program_.components, Fields(), program_.folder, program_.boxes);
    if (outcome == EditOutcome::Refused) return;
    Load();
    RefreshComponentChoice(program_.editor, program_.components);
    program_.changed();
}

void FrmPerCon::Command3_Click() {
    const int slot = ChosenSlot(program_.components.losses, Combo1->currentIndex(), Combo1->Text());
    const EditOutcome outcome =
        DeleteLoss(program_.components, slot, program_.folder, program_.boxes);
    if (outcome != EditOutcome::Done) return;
    Load();
    RefreshComponentChoice(program_.editor, program_.components);
    program_.changed();
}

}  // namespace idrova
