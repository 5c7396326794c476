// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/windows/frm_rug.h"

#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "physdata/pipe_settings.h"
#include "ui/kit/form_parts.h"
#include "ui/kit/qt_text.h"
#include "ui/program.h"

namespace idrova {

FrmRug::FrmRug(Program& program)
    : ChildWindow("FrmRug", "Idrova - roughness"),
      program_(program),
      roughness_(TextField("Text1")) {
    QPushButton* confirm = CommandButton("Command1", "OK", [this] { Confirm(); });
    SetDefaultButton(confirm);
    auto* rows = new FieldGrid;
    rows->AddField("Roughness[m]", roughness_);
    auto* column = new QVBoxLayout(this);
    column->addLayout(rows);
    column->addStretch(1);
    column->addLayout(ButtonRow({confirm}));
    roughness_->setText(ToQt(RoughnessFieldText(program_.project.settings)));
    setFocusProxy(roughness_);
}

void FrmRug::Confirm() {
    if (!ChooseUserRoughness(program_.project.settings, FromQt(roughness_->text()))) {
        roughness_->selectAll();
        roughness_->setFocus();
        return;
    }
    program_.shell.roughnessItem = kUserRoughnessItem;
    program_.changed();
    CloseWindow();
}

}  // namespace idrova
