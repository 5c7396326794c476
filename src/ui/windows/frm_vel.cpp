// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/windows/frm_vel.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "model/pipe_sizes.h"
#include "table/fast_settings.h"
#include "ui/kit/controls.h"
#include "ui/kit/form_parts.h"
#include "ui/kit/name_list.h"
#include "ui/kit/qt_text.h"
#include "ui/program.h"

namespace idrova {

FrmVel::FrmVel(Program& program)
    : ChildWindow("FrmVel", "Idrova - fast data"),
      program_(program),
      Text1(TextField("Text1")),
      Text2(TextField("Text2")),
      Combo2(SizeList("Combo2")),
      Text3(TextField("Text3")) {
    auto* column = new QVBoxLayout(this);
    column->addLayout(Rows());
    column->addStretch(1);
    OnChosen(*Combo2, [this](int position) { Combo2_Click(position); });
    connect(Text2, &QLineEdit::textChanged, this, [this] { Text2_Change(); });
    setFocusProxy(Text1);
}

QGridLayout* FrmVel::Rows() {
    auto* rows = new FieldGrid;
    rows->AddHeading(Named(PlainLabel("set to all pipes"), "Label3"));
    AddSetting(*rows, "Flow rate [kg/h]", Text1, "Command1", [this] { Command1_Click(); });
    AddSetting(*rows, "Lenght [m]", Text2, "Command2", [this] { Command2_Click(); });
    rows->AddField("Diameter \"", Combo2);
    AddSetting(*rows, "Diameter [mm]", Text3, "Command3", [this] { Command3_Click(); });
    return rows;
}

void FrmVel::AddSetting(FieldGrid& rows, const QString& caption, QLineEdit* field,
                        const char* button, const std::function<void()>& set) {
    QPushButton* setter = CommandButton(button, "Set", set);
    setter->setAccessibleName("Set " + caption);
    rows.AddField(caption, field);
    rows.AddButton(setter);
    connect(field, &QLineEdit::returnPressed, setter, &QPushButton::click);
}

void FrmVel::Command1_Click() {
    SetAllFlowRates(program_.project, FromQt(Text1->text()), program_.boxes);
    program_.changed();
}

void FrmVel::Command2_Click() {
    SetAllLengths(program_.project, FromQt(Text2->text()), program_.boxes);
    program_.changed();
}

void FrmVel::Command3_Click() {
    SetAllDiameters(program_.project, FromQt(Text3->text()), program_.boxes);
    program_.changed();
}

void FrmVel::Combo2_Click(int position) {
    Text3->setText(ToQt(InnerDiameterText(position + 1)));
}

void FrmVel::Text2_Change() {
    const QString text = ToQt(FastLengthText(FromQt(Text2->text())));
    // The same text put again would take the cursor to its end and forget what can be undone.
    if (text != Text2->text()) Text2->setText(text);
}

}  // namespace idrova
