// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/frm_table.h"

#include <QVBoxLayout>

#include "table/table_texts.h"
#include "ui/program.h"
#include "ui/table_model.h"
#include "ui/table_view.h"

namespace idrova {

namespace {

/// The table as the project holds it now: its rows and the pressure unit may be new.
TableModel* FilledModel(Program& program, QObject* parent) {
    FillTable(program.project, program.table);
    return new TableModel(program, parent);
}

}  // namespace

FrmTable::FrmTable(Program& program)
    : ChildWindow("FrmTable", "Idrova - Insertion with table"),
      model_(FilledModel(program, this)),
      TxtTab(new TableView(*model_)) {
    StayOnEscape();
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(TxtTab);
    setFocusProxy(TxtTab);
}

void FrmTable::ShowNetwork() {
    model_->Refresh();
}

void FrmTable::TakeEdits() {
    TxtTab->TakeEdit();
}

}  // namespace idrova
