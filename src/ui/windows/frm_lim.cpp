// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/windows/frm_lim.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "base/number_text.h"
#include "physdata/limit_texts.h"
#include "physdata/messages.h"
#include "ui/kit/form_parts.h"
#include "ui/kit/qt_text.h"
#include "ui/program.h"

namespace idrova {

FrmLim::FrmLim(Program& program)
    : ChildWindow("FrmLim", "Idrova - limits"),
      program_(program),
      unit_(DecimalDouble(program.project.settings.PressureUnitFactor)),
      velocity_(TextField("Text1")),
      loss_(TextField("Text2")),
      lowestPressure_(TextField("Text3")),
      highestPressure_(TextField("Text4")) {
    QPushButton* confirm = CommandButton("Command1", "OK", [this] { Confirm(); });
    SetDefaultButton(confirm);
    const QString unit = program.project.settings.PressureUnit == Unit::Bar ? "[bar]" : "[mbar]";
    auto* rows = new FieldGrid;
    rows->AddField("Highest velocity", velocity_, "[m/s]");
    rows->AddField("Highest losses", loss_, "[Pa/m]");
    rows->AddField("Lowest pressure", lowestPressure_, unit);
    rows->AddField("Highest pressure", highestPressure_, unit);
    auto* column = new QVBoxLayout(this);
    column->addLayout(rows);
    column->addWidget(PlainLabel("What is beyond a limit is shown in red. Empty: no limit"));
    column->addStretch(1);
    column->addLayout(ButtonRow({confirm}));
    const LimitTexts shown = ShowLimits(program.limits, unit_);
    velocity_->setText(ToQt(shown.velocity));
    loss_->setText(ToQt(shown.loss));
    lowestPressure_->setText(ToQt(shown.lowestPressure));
    highestPressure_->setText(ToQt(shown.highestPressure));
    setFocusProxy(velocity_);
}

void FrmLim::Confirm() {
    const auto limits =
        ReadLimits({FromQt(velocity_->text()), FromQt(loss_->text()),
                    FromQt(lowestPressure_->text()), FromQt(highestPressure_->text())},
                   unit_);
    if (!limits) return static_cast<void>(program_.boxes.Show(kLimitIsNoNumber));
    program_.limits = *limits;
    program_.changed();
    CloseWindow();
}

}  // namespace idrova
