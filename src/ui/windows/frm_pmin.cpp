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
      basePressure_(TextField("Text1")),
      temperature_(TextField("Text2")) {
    QPushButton* confirm = CommandButton("Command1", "OK", [this] { Confirm(); });
    SetDefaultButton(confirm);
    auto* rows = new FieldGrid;
    rows->AddField("Base pressure", basePressure_, "[bar]");
    rows->AddField("Fluid temperature", temperature_, "[°C]", "Only for compressible fluids");
    auto* column = new QVBoxLayout(this);
    column->addLayout(rows);
    column->addStretch(1);
    column->addLayout(ButtonRow({confirm}));
    basePressure_->setText(ToQt(shown_.basePressure));
    temperature_->setText(ToQt(shown_.temperature));
    setFocusProxy(basePressure_);
}

void FrmPMin::GoToTemperature() {
    temperature_->setFocus();
}

void FrmPMin::Confirm() {
    SetCalculationData(program_.project.settings, shown_,
                       {.basePressure = FromQt(basePressure_->text()),
                        .temperature = FromQt(temperature_->text())});
    program_.changed();
    CloseWindow();
}

}  // namespace idrova
