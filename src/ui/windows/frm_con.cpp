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
      editor_(new NameList("Combo1")) {
    QPushButton* save = CommandButton("Command1", "Save", [this] { Save(); });
    QPushButton* leave = CommandButton("Command2", "Exit", [this] { CloseWindow(); });
    SetDefaultButton(save);
    editor_->setMinimumContentsLength(44);
    auto* column = new QVBoxLayout(this);
    column->addWidget(Named(LabelFor(editor_, "Text editor"), "Label1"));
    column->addWidget(editor_);
    column->addStretch(1);
    column->addLayout(ButtonRow({save, leave}));
    editor_->Refill(EditorSuggestions());
    editor_->setEditText(ToQt(EditorBoxText(program_.folder)));
    setFocusProxy(editor_);
}

void FrmCon::Save() {
    if (SaveEditor(program_.folder, editor_->Text(), program_.boxes)) CloseWindow();
}

}  // namespace idrova
