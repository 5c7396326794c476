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
    : ChildWindow("FrmRug", "Idrova - roughness"), program_(program), Text1(TextField("Text1")) {
    QPushButton* confirm = CommandButton("Command1", "OK", [this] { Command1_Click(); });
    SetDefaultButton(confirm);
    auto* rows = new FieldGrid;
    rows->AddField("Roughness[m]", Text1);
    auto* column = new QVBoxLayout(this);
    column->addLayout(rows);
    column->addStretch(1);
    column->addLayout(ButtonRow({confirm}));
    Text1->setText(ToQt(RoughnessFieldText(program_.project.settings)));
    setFocusProxy(Text1);
}

void FrmRug::Command1_Click() {
    if (!ChooseUserRoughness(program_.project.settings, FromQt(Text1->text()))) {
        Text1->selectAll();
        Text1->setFocus();
        return;
    }
    program_.shell.roughnessItem = kUserRoughnessItem;
    program_.changed();
    CloseWindow();
}

}  // namespace idrova
