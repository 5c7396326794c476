// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/table/frm_table.h"

#include <QVBoxLayout>

#include "table/table_texts.h"
#include "ui/program.h"
#include "ui/table/table_model.h"
#include "ui/table/table_view.h"

namespace idrova {

FrmTable::FrmTable(Program& program)
    : ChildWindow("FrmTable", "Idrova - Insertion with table"),
      model_(program.tableModel),
      TxtTab(new TableView(model_, program.tablePlace)) {
    FillTable(program.project, program.table);
    model_.ShowState();
    StayOnEscape();
    connect(&model_, &TableModel::dataChanged, this, [&program] { program.changed(); });
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(TxtTab);
    setFocusProxy(TxtTab);
}

void FrmTable::ShowState() {
    model_.ShowState();
}

void FrmTable::TakeEdits() {
    TxtTab->TakeEdit();
}

}  // namespace idrova
