// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/windows/frm_con.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "results/editor_setting.h"
#include "ui/kit/controls.h"
#include "ui/kit/form_parts.h"
#include "ui/kit/name_list.h"
#include "ui/kit/qt_text.h"
#include "ui/program.h"

namespace idrova {

FrmCon::FrmCon(Program& program)
    : ChildWindow("FrmCon", "Idrova - Configuration"),
      program_(program),
      Combo1(new NameList("Combo1")) {
    QPushButton* save = CommandButton("Command1", "Save", [this] { Command1_Click(); });
    QPushButton* leave = CommandButton("Command2", "Exit", [this] { CloseWindow(); });
    SetDefaultButton(save);
    Combo1->setMinimumContentsLength(44);
    auto* column = new QVBoxLayout(this);
    column->addWidget(Named(LabelFor(Combo1, "Text editor"), "Label1"));
    column->addWidget(Combo1);
    column->addStretch(1);
    column->addLayout(ButtonRow({save, leave}));
    Combo1->Refill(EditorSuggestions());
    Combo1->setEditText(ToQt(EditorBoxText(program_.folder)));
    setFocusProxy(Combo1);
}

void FrmCon::Command1_Click() {
    if (SaveEditor(program_.folder, Combo1->Text(), program_.boxes)) CloseWindow();
}

}  // namespace idrova
