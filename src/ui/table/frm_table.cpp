// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/table/frm_table.h"

#include <QVBoxLayout>

#include "shell/table_results.h"
#include "table/table_rows.h"
#include "ui/program.h"
#include "ui/table/gap_bar.h"
#include "ui/table/table_model.h"
#include "ui/table/table_view.h"

namespace idrova {

FrmTable::FrmTable(Program& program)
    : ChildWindow("FrmTable", "Idrova - Insertion with table"),
      program_(program),
      TxtTab(new TableView(program.tableModel, program.tablePlace, program.boxes)),
      gap_(new GapBar(program.tableModel)) {
    FillTable(program.project, program.table);
    StayOnEscape();
    connect(&program.tableModel, &TableModel::dataChanged, this, [&program] { program.changed(); });
    connect(&program.tableModel.Undo(), &QUndoStack::indexChanged, this,
            [&program] { program.changed(); });
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(gap_);
    column->addWidget(TxtTab);
    setFocusProxy(TxtTab);
    connect(TxtTab->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this](const QModelIndex& now) { LineChosen(now.row()); });
    FrmTable::ShowState();
}

void FrmTable::ShowState() {
    program_.tableModel.ShowState();
    const auto record = program_.records.find(WorkMode::Table);
    const RowResults results = ShowRowResults(
        program_.project, record == program_.records.end() ? nullptr : &record->second,
        program_.limits);
    TxtTab->ShowResultColumns(!results.isEmpty);
    program_.tableModel.ShowResults(results);
    gap_->ShowGap(NoteOfGap(program_.project, program_.table));
    const QModelIndex current = TxtTab->currentIndex();
    const int line = program_.tablePlace.line;
    if (current.isValid() && current.row() != line) {
        TxtTab->setCurrentIndex(current.siblingAtRow(line));
    }
}

void FrmTable::LineChosen(int line) {
    if (line < 0) return;
    program_.tablePlace.line = line;
    program_.changed();
}

void FrmTable::TakeEdits() {
    TxtTab->TakeEdit();
}

}  // namespace idrova
