// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/table/table_model.h"

#include <QColor>
#include <QUndoCommand>
#include <utility>

#include "table/table_edit.h"
#include "table/table_rows.h"
#include "ui/kit/coloured_field.h"
#include "ui/kit/qt_text.h"

namespace idrova {

namespace {

constexpr int kUndoLimit = 200;  ///< of about 45 KB each

/// All that an edit can change.
struct TableState {
    decltype(Project::TableRows) rows;
    TableTexts texts;
};

// On light and dark grounds.
const QColor kNotComputed(128, 128, 128, 90);
const QColor kResultGround(128, 128, 128, 30);
const QColor kOutOfDate(128, 128, 128);

const auto kAlignment = QVariant::fromValue(Qt::AlignRight | Qt::AlignVCenter);

}  // namespace

/// An edit that was made: holds the table as it was before, and once undone as it was after.
class TableModel::Change : public QUndoCommand {
  public:
    Change(TableModel& model, const QString& name, TableState before)
        : QUndoCommand(name), model_(model), other_(std::move(before)) {}

    void undo() override { Swap(); }
    void redo() override {
        if (std::exchange(made_, true)) Swap();
    }

  private:
    void Swap() {
        std::swap(model_.project_.TableRows, other_.rows);
        std::swap(model_.texts_, other_.texts);
        model_.Announce();
    }

    TableModel& model_;
    TableState other_;
    bool made_ = false;
};

TableModel::TableModel(Project& project, TableTexts& texts) : project_(project), texts_(texts) {
    undo_.setUndoLimit(kUndoLimit);
}

int TableModel::RowOf(const QModelIndex& index) {
    return index.row() + kFirstTableRow;
}

int TableModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : kMaxTableRows;
}

int TableModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : kShownColumns;
}

QVariant TableModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
    const int row = RowOf(index);
    if (index.column() >= kTableColumns) return Result(row, index.column(), role);
    switch (role) {
        case Qt::DisplayRole:
        case Qt::EditRole:
            return ToQt(texts_.At(row, index.column()));
        case Qt::BackgroundRole:
            return Ground(row, index.column());
        case Qt::ToolTipRole:
            return Tip(row, index.column());
        case kFramedRole:
            return texts_.IsFramed(row, index.column());
        case Qt::TextAlignmentRole:
            return kAlignment;
        default:
            return {};
    }
}

QVariant TableModel::Result(int row, int column, int role) const {
    switch (role) {
        case Qt::DisplayRole:
            return ToQt(results_.At(row, column));
        case Qt::ForegroundRole:
            if (results_.outOfDate) return kOutOfDate;
            return results_.IsBeyond(row, column) ? QVariant(BeyondLimitColour()) : QVariant();
        case Qt::BackgroundRole:
            return kResultGround;
        case Qt::TextAlignmentRole:
            return kAlignment;
        default:
            return {};
    }
}

QVariant TableModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation == Qt::Vertical) {
        return role == Qt::DisplayRole ? index(section, table_column::kNumber).data() : QVariant();
    }
    if (section < 0 || section >= kShownColumns || role != Qt::DisplayRole) return {};
    return ToQt(HeaderOf(project_.settings, section));
}

QVariant TableModel::Ground(int row, int column) const {
    if (row > lastListed_ + 1 && !texts_.IsEmptyRow(row)) return kNotComputed;
    if (texts_.IsPainted(row, column)) return QColor(QRgb{kToComputeColour});
    return {};
}

QString TableModel::Tip(int row, int column) const {
    if (!texts_.IsFramed(row, column)) return {};
    return column == table_column::kNominalSize ? "No size" : "Not a number as a whole";
}

Qt::ItemFlags TableModel::flags(const QModelIndex& index) const {
    const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    const int column = index.isValid() ? index.column() : table_column::kNumber;
    const bool isTyped = column != table_column::kNumber && column < kTableColumns;
    return isTyped ? flags | Qt::ItemIsEditable : flags;
}

bool TableModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (role != Qt::EditRole || !(flags(index) & Qt::ItemIsEditable)) return false;
    const std::string_view header = kTableColumnList[index.column()].header;
    const QString column = ToQt(std::string(header.substr(0, header.find(" ["))));
    Apply(column + QString(" of row %1").arg(ShownRow(RowOf(index))), [&] {
        ChangeCell(project_, texts_, RowOf(index), index.column(), FromQt(value.toString()));
    });
    return true;
}

void TableModel::ChooseSize(const QModelIndex& cell, int position) {
    Apply("diameter", [&] { ChooseNominalSize(project_, texts_, RowOf(cell), position + 1); });
}

std::string TableModel::Copy(const TableBlock& block) const {
    return CopyBlock(texts_, results_, block);
}

void TableModel::Paste(const TableBlock& block, const std::string& text) {
    Apply("paste", [&] { PasteBlock(project_, texts_, block, text); });
}

void TableModel::FillDown(const TableBlock& block) {
    Apply("fill down", [&] { idrova::FillDown(project_, texts_, block); });
}

void TableModel::Clear(const TableBlock& block, const QString& name) {
    Apply(name, [&] { ClearBlock(project_, texts_, block); });
}

bool TableModel::InsertRows(int row, int count) {
    bool done = false;
    Apply("insert rows", [&] { done = idrova::InsertRows(project_, texts_, row, count); });
    return done;
}

void TableModel::DeleteRows(int firstRow, int lastRow) {
    Apply("delete rows", [&] { idrova::DeleteRows(project_, texts_, firstRow, lastRow); });
}

void TableModel::CloseUp() {
    Apply("close up", [&] { idrova::CloseUp(project_, texts_); });
}

void TableModel::ShowState() {
    const float unit = project_.settings.PressureUnitFactor;
    if (std::exchange(shownUnit_, unit) != unit) {
        undo_.clear();
        Q_EMIT headerDataChanged(Qt::Horizontal, 0, kShownColumns - 1);
    }
    if (shown_ != texts_) Announce();
}

void TableModel::ShowResults(const RowResults& results) {
    if (results_ == results) return;
    results_ = results;
    Q_EMIT dataChanged(index(0, kTableColumns), index(rowCount() - 1, columnCount() - 1));
}

void TableModel::StartAnew() {
    undo_.clear();
    ShowState();
}

void TableModel::Apply(const QString& name, const std::function<void()>& edit) {
    TableState before{project_.TableRows, texts_};
    edit();
    if (texts_ == before.texts) return;
    undo_.push(new Change(*this, name, std::move(before)));
    Announce();
}

void TableModel::Announce() {
    shown_ = texts_;
    lastListed_ = kFirstTableRow + CountListedRows(project_) - 1;
    // One pressure can reach every row.
    Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
}

}  // namespace idrova
