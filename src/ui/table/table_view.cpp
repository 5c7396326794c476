// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/table/table_view.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QScrollBar>
#include <QStyle>
#include <QVBoxLayout>
#include <algorithm>

#include "table/messages.h"
#include "ui/kit/controls.h"
#include "ui/kit/qt_text.h"
#include "ui/table/table_delegate.h"
#include "ui/table/table_model.h"

namespace idrova {

namespace {

constexpr int kUnitsPerPixel = 15;
constexpr int kLineMargin = 4;  ///< pixels, of a line of text in its cell, both sides together
constexpr int kHeaderFlags = Qt::AlignCenter | Qt::TextWordWrap;

/// Around the text of a header, both sides together, with the line that parts it from the next.
int HeaderMargin(const QHeaderView& header) {
    return 2 * header.style()->pixelMetric(QStyle::PM_HeaderMargin, nullptr, &header) + 2;
}

/// The width of a column, given in screen units. Where a word of its header is wider than that,
/// as "diameter" is in most fonts, the column is just wide enough for the word. Results are as wide
/// as a flow rate.
int ColumnWidth(const QHeaderView& header, int column, const QString& words) {
    const int listed = column < kTableColumns ? column : table_column::kFlowRate;
    int widest = 0;
    for (const QString& word : words.split(' ')) {
        widest = std::max(widest, header.fontMetrics().horizontalAdvance(word));
    }
    return std::max(kTableColumnList[listed].width / kUnitsPerPixel, widest + HeaderMargin(header));
}

}  // namespace

TableView::TableView(TableModel& model, TablePlace& place, MessageBoxes& boxes)
    : model_(model), place_(place), boxes_(boxes) {
    Named(this, "TxtTab");
    Named(verticalScrollBar(), "ScrY");
    Named(horizontalScrollBar(), "ScrX");
    setAccessibleName("Pipes of the table");
    // Styles draw the lines between cells too dark for dark grounds.
    setStyleSheet("QTableView { gridline-color: rgba(128, 128, 128, 110); }");
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
    setHorizontalScrollMode(ScrollPerItem);
    setVerticalScrollMode(ScrollPerItem);
    MakeHeaders();
    SizeColumns();
    SizeLines();
    AddCommands();
    setCurrentIndex(model.index(place.line, place.column));
    connect(&model, &QAbstractItemModel::headerDataChanged, this, &TableView::SizeColumns);
    connect(this, &QAbstractItemView::clicked, this, [this](const QModelIndex& cell) {
        if (cell.column() == table_column::kNominalSize) edit(cell);
    });
}

void TableView::MakeHeaders() {
    // The lines' own header shows the numbers: it stays in place when the columns scroll.
    setColumnHidden(table_column::kNumber, true);
    verticalHeader()->setHighlightSections(false);
    verticalHeader()->setDefaultAlignment(Qt::AlignCenter);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setDefaultAlignment(Qt::Alignment::fromInt(kHeaderFlags));
    auto* corner = findChild<QAbstractButton*>();
    auto* label = new QLabel(ToQt(kTableColumnList[table_column::kNumber].header), corner);
    label->setAlignment(Qt::AlignCenter);
    label->setFont(horizontalHeader()->font());
    label->setAttribute(Qt::WA_TransparentForMouseEvents);
    auto* whole = new QVBoxLayout(corner);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->addWidget(label);
}

void TableView::SizeColumns() {
    QHeaderView& header = *horizontalHeader();
    header.setMinimumSectionSize(kTableColumnList[0].width / kUnitsPerPixel);
    int height = 0;
    for (int column = 0; column < kShownColumns; ++column) {
        const QString words = model_.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
        const int width = ColumnWidth(header, column, words);
        setColumnWidth(column, width);
        const QRect room(0, 0, width - HeaderMargin(header), QWIDGETSIZE_MAX);
        height =
            std::max(height, header.fontMetrics().boundingRect(room, kHeaderFlags, words).height());
    }
    header.setFixedHeight(height + HeaderMargin(header));
}

void TableView::ShowResultColumns(bool shown) {
    for (int column = kTableColumns; column < kShownColumns; ++column) {
        setColumnHidden(column, !shown);
    }
}

void TableView::SizeLines() {
    QHeaderView& header = *verticalHeader();
    const QString longest =
        ToQt(kTableColumnList[table_column::kNumber].header) + ' ' + QString::number(kLastTableRow);
    header.setFixedWidth(ColumnWidth(header, table_column::kNumber, longest));
    header.setDefaultSectionSize(
        std::max(kTableRowHeight / kUnitsPerPixel, fontMetrics().height() + kLineMargin));
}

void TableView::AddCommands() {
    setContextMenuPolicy(Qt::ActionsContextMenu);
    AddCommand("&Undo", {}, &TableView::Undo);  // the keys are those of the menu Edit
    AddCommand("&Redo", {}, &TableView::Redo);
    AddCommand("Cu&t", {QKeySequence("Ctrl+X")}, &TableView::Cut);
    AddCommand("&Copy", {QKeySequence("Ctrl+C")}, &TableView::Copy);
    AddCommand("&Paste", {QKeySequence("Ctrl+V")}, &TableView::Paste);
    AddCommand("Fill d&own", {QKeySequence("Ctrl+D")}, &TableView::FillDown);
    AddCommand("&Delete", {QKeySequence("Del"), QKeySequence("Backspace")}, &TableView::Delete);
    AddCommand("&Insert rows", {QKeySequence("Ctrl++")}, &TableView::InsertRows);
    AddCommand("Delete &rows", {QKeySequence("Ctrl+-")}, &TableView::DeleteRows);
}

void TableView::AddCommand(const QString& caption, const QList<QKeySequence>& keys,
                           void (TableView::*command)()) {
    auto* action = new QAction(caption, this);
    action->setShortcuts(keys);
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

void TableView::showEvent(QShowEvent* event) {
    QTableView::showEvent(event);
    updateGeometries();  // the ranges of the scroll bars
    horizontalScrollBar()->setValue(place_.scrolledColumns);
    verticalScrollBar()->setValue(place_.scrolledLines);
}

void TableView::hideEvent(QHideEvent* event) {
    place_ = {currentIndex().row(), currentIndex().column(), horizontalScrollBar()->value(),
              verticalScrollBar()->value()};
    QTableView::hideEvent(event);
}

std::optional<TableBlock> TableView::Selected() const {
    const QModelIndexList cells = selectedIndexes();  // without the hidden numbers
    if (cells.isEmpty()) return std::nullopt;
    TableBlock block{kTableLines, kTableColumns, 0, 0};
    for (const QModelIndex& cell : cells) {
        const int row = TableModel::RowOf(cell);
        block = {std::min(block.firstRow, row), std::min(block.firstColumn, cell.column()),
                 std::max(block.lastRow, row), std::max(block.lastColumn, cell.column())};
    }
    return block;
}

void TableView::Cut() {
    Copy();
    if (const auto block = Selected()) model_.Clear(*block, "cut");
}

void TableView::Copy() {
    if (const auto block = Selected()) {
        QApplication::clipboard()->setText(ToQt(model_.Copy(*block)));
    }
}

void TableView::Paste() {
    const auto block = Selected();
    const std::string text = FromQt(QApplication::clipboard()->text());
    if (!block || text.empty()) return;
    const PasteLoss loss = LossOfPaste(*block, text);
    const bool fits = loss.rowsLost + loss.columnsLost == 0;
    if (fits || boxes_.Show(PartLeftOut(loss)) == Answer::Yes) model_.Paste(*block, text);
}

void TableView::FillDown() {
    if (const auto block = Selected()) model_.FillDown(*block);
}

void TableView::Delete() {
    if (const auto block = Selected()) model_.Clear(*block, "delete");
}

void TableView::InsertRows() {
    const auto block = Selected();
    if (!block) return;
    const int count = block->lastRow - block->firstRow + 1;
    if (!model_.InsertRows(block->firstRow, count)) boxes_.Show(kNoRoomForRows);
}

void TableView::DeleteRows() {
    if (const auto block = Selected()) model_.DeleteRows(block->firstRow, block->lastRow);
}

void TableView::Undo() {
    model_.Undo().undo();
}

void TableView::Redo() {
    model_.Undo().redo();
}

void TableView::updateGeometries() {
    QTableView::updateGeometries();
    ShowWholeCells();
}

void TableView::scrollContentsBy(int dx, int dy) {
    QTableView::scrollContentsBy(dx, dy);
    ShowWholeCells();
}

void TableView::ShowWholeCells() {
    const QPoint shown(horizontalHeader()->offset(), verticalHeader()->offset());
    horizontalHeader()->setOffsetToSectionPosition(horizontalScrollBar()->value());
    verticalHeader()->setOffsetToSectionPosition(verticalScrollBar()->value());
    const QPoint whole(horizontalHeader()->offset(), verticalHeader()->offset());
    if (whole == shown) return;
    viewport()->update();
    updateEditorGeometries();
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
    const int perRow = kTableColumns - 1;  // without the hidden number
    const QModelIndex from = currentIndex();
    // Results are passed over.
    const int column = std::min(from.column(), step == 1 ? perRow : perRow + 1);
    const int cell = from.row() * perRow + column - 1 + step;
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
