// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/table_view.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QKeyEvent>
#include <QScrollBar>
#include <algorithm>
#include <optional>

#include "model/grid.h"
#include "ui/controls.h"
#include "ui/qt_text.h"
#include "ui/table_delegate.h"
#include "ui/table_model.h"

namespace idrova {

namespace {

constexpr int kUnitsPerPixel = 15;
constexpr int kCellMargin = 12;

std::optional<TableBlock> Selected(const QItemSelectionModel& selection) {
    const QModelIndexList cells = selection.selectedIndexes();
    if (cells.isEmpty()) return std::nullopt;
    TableBlock block{kTableLines, kTableColumns, 0, 0};
    for (const QModelIndex& cell : cells) {
        const int row = TableModel::RowOf(cell);
        block = {std::min(block.firstRow, row), std::min(block.firstColumn, cell.column()),
                 std::max(block.lastRow, row), std::max(block.lastColumn, cell.column())};
    }
    return block;
}

/// Room for the longest word of a header.
int HeaderWidth(const QFontMetrics& metrics, const QString& header) {
    int width = 0;
    for (const QString& word : header.split(' ')) {
        width = std::max(width, metrics.horizontalAdvance(word));
    }
    return width + kCellMargin;
}

}  // namespace

TableView::TableView(TableModel& model) : model_(model) {
    Named(this, "TxtTab");
    Named(verticalScrollBar(), "ScrY");
    Named(horizontalScrollBar(), "ScrX");
    setAccessibleName("Pipes of the table");
    setModel(&model);
    auto* delegate = new TableDelegate(this);
    delegate->sizeChosen = [this](QWidget* list, const QModelIndex& cell, int position) {
        model_.ChooseSize(cell, position);
        closeEditor(list, QAbstractItemDelegate::NoHint);
    };
    delegate->listLeft = [this](QWidget* list) {
        closeEditor(list, QAbstractItemDelegate::NoHint);
    };
    setItemDelegate(delegate);
    setSelectionMode(ContiguousSelection);
    setEditTriggers(AnyKeyPressed | EditKeyPressed | DoubleClicked);
    setTabKeyNavigation(true);
    SizeColumns();
    AddCommands();
    setCurrentIndex(model.index(0, table_column::kStartPoint));
    connect(this, &QAbstractItemView::clicked, this, [this](const QModelIndex& cell) {
        if (cell.column() == table_column::kNominalSize) edit(cell);
    });
}

void TableView::SizeColumns() {
    verticalHeader()->hide();
    verticalHeader()->setDefaultSectionSize(
        std::max(kTableRowHeight / kUnitsPerPixel, fontMetrics().height() + kCellMargin / 2));
    QHeaderView* header = horizontalHeader();
    header->setDefaultAlignment(Qt::Alignment::fromInt(Qt::AlignCenter | Qt::TextWordWrap));
    header->setFixedHeight(2 * fontMetrics().lineSpacing() + kCellMargin);
    header->setHighlightSections(false);
    header->setMinimumSectionSize(kTableColumnList[0].width / kUnitsPerPixel);
    for (int column = 0; column < kTableColumns; ++column) {
        const TableColumn& shown = kTableColumnList[column];
        setColumnWidth(column, std::max(shown.width / kUnitsPerPixel,
                                        HeaderWidth(fontMetrics(), ToQt(shown.header))));
    }
}

void TableView::AddCommands() {
    setContextMenuPolicy(Qt::ActionsContextMenu);
    AddCommand("&Undo", QKeySequence("Ctrl+Z"), &TableView::Undo);
    AddCommand("&Redo", QKeySequence("Ctrl+Y"), &TableView::Redo);
    AddCommand("&Copy", QKeySequence("Ctrl+C"), &TableView::Copy);
    AddCommand("&Paste", QKeySequence("Ctrl+V"), &TableView::Paste);
    AddCommand("&Delete", QKeySequence("Del"), &TableView::Delete);
}

void TableView::AddCommand(const QString& caption, const QKeySequence& keys,
                           void (TableView::*command)()) {
    auto* action = new QAction(caption, this);
    action->setShortcut(keys);
    action->setShortcutContext(Qt::WidgetShortcut);
    connect(action, &QAction::triggered, this, command);
    addAction(action);
}

void TableView::TakeEdit() {
    QWidget* editor = indexWidget(currentIndex());
    if (editor == nullptr) return;
    commitData(editor);
    closeEditor(editor, QAbstractItemDelegate::NoHint);
}

void TableView::Copy() {
    if (const auto block = Selected(*selectionModel())) {
        QApplication::clipboard()->setText(ToQt(model_.Copy(*block)));
    }
}

void TableView::Paste() {
    const auto block = Selected(*selectionModel());
    const QString text = QApplication::clipboard()->text();
    if (!block || text.isEmpty()) return;
    model_.Paste(model_.index(block->firstRow - kFirstTableRow, block->firstColumn), FromQt(text));
}

void TableView::Delete() {
    if (const auto block = Selected(*selectionModel())) model_.Clear(*block);
}

void TableView::Undo() {
    model_.Undo().undo();
}

void TableView::Redo() {
    model_.Undo().redo();
}

void TableView::MoveDown(int rows) {
    const QModelIndex next = currentIndex().siblingAtRow(currentIndex().row() + rows);
    if (next.isValid()) setCurrentIndex(next);
}

void TableView::keyPressEvent(QKeyEvent* event) {
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isEnter && state() == EditingState) {
        TakeEdit();
    }
    if (isEnter) {
        MoveDown(event->modifiers().testFlag(Qt::ShiftModifier) ? -1 : 1);
        event->accept();
    } else if (event->key() == Qt::Key_Escape) {
        event->accept();
    } else {
        QTableView::keyPressEvent(event);
    }
}

QModelIndex TableView::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) {
    if (action != MoveNext && action != MovePrevious) {
        return QTableView::moveCursor(action, modifiers);
    }
    const int step = action == MoveNext ? 1 : -1;
    const int perRow = kTableColumns - 1;  // the line number is not stopped at
    const QModelIndex from = currentIndex();
    const int cell = from.row() * perRow + std::max(from.column(), 1) - 1 + step;
    if (cell < 0 || cell >= perRow * model_.rowCount()) return from;
    return model_.index(cell / perRow, cell % perRow + 1);
}

void TableView::closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) {
    QTableView::closeEditor(editor, QAbstractItemDelegate::NoHint);
    if (hint == QAbstractItemDelegate::EditNextItem) setCurrentIndex(moveCursor(MoveNext, {}));
    if (hint == QAbstractItemDelegate::EditPreviousItem) {
        setCurrentIndex(moveCursor(MovePrevious, {}));
    }
}

}  // namespace idrova
