// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/windows/frm_pmin.h"

#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "hydraulics/run_settings.h"
#include "ui/kit/form_parts.h"
#include "ui/kit/qt_text.h"
#include "ui/program.h"

namespace idrova {

FrmPMin::FrmPMin(Program& program)
    : ChildWindow("FrmPMin", "Idrova - calculation data"),
      program_(program),
      shown_(ShowCalculationData(program.project.settings)),
      Text1(TextField("Text1")),
      Text2(TextField("Text2")) {
    QPushButton* confirm = CommandButton("Command1", "OK", [this] { Command1_Click(); });
    SetDefaultButton(confirm);
    auto* rows = new FieldGrid;
    rows->AddField("Base pressure", Text1, "[bar]");
    rows->AddField("Fluid temperature", Text2, "[°C]", "Only for compressible fluids");
    auto* column = new QVBoxLayout(this);
    column->addLayout(rows);
    column->addStretch(1);
    column->addLayout(ButtonRow({confirm}));
    Text1->setText(ToQt(shown_.basePressure));
    Text2->setText(ToQt(shown_.temperature));
    setFocusProxy(Text1);
}

void FrmPMin::GoToTemperature() {
    Text2->setFocus();
}

void FrmPMin::Command1_Click() {
    SetCalculationData(
        program_.project.settings, shown_,
        {.basePressure = FromQt(Text1->text()), .temperature = FromQt(Text2->text())});
    program_.changed();
    CloseWindow();
}

}  // namespace idrova
