// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/windows/result_model.h"

#include <QApplication>
#include <QPalette>
#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "ui/kit/coloured_field.h"
#include "ui/kit/qt_text.h"

namespace idrova {

namespace {

bool IsNoNumber(const ResultCell& cell) {
    const auto* value = std::get_if<double>(&cell);
    return value != nullptr && std::isnan(*value);
}

/// Equal as shown: two numbers that are none are equal.
bool LookAlike(const ResultTable& one, const ResultTable& other) {
    const auto sameColumn = [](const ResultColumn& a, const ResultColumn& b) {
        return a.key == b.key;
    };
    const auto sameCell = [](const ResultCell& a, const ResultCell& b) {
        return a == b || (IsNoNumber(a) && IsNoNumber(b));
    };
    const auto sameRow = [&](const ResultRow& a, const ResultRow& b) {
        return a.number == b.number && a.beyond == b.beyond &&
               std::ranges::equal(a.cells, b.cells, sameCell);
    };
    return std::ranges::equal(one.columns, other.columns, sameColumn) &&
           std::ranges::equal(one.rows, other.rows, sameRow);
}

/// Those that are no number come first.
QVariant SortValue(const ResultCell& cell) {
    if (const auto* text = std::get_if<std::string>(&cell)) return ToQt(*text);
    const double value = std::get<double>(cell);
    return std::isnan(value) ? -std::numeric_limits<double>::infinity() : value;
}

}  // namespace

void ResultModel::Show(ResultTable table, bool old) {
    if (!LookAlike(table, table_)) {
        beginResetModel();
        table_ = std::move(table);
        old_ = old;
        endResetModel();
    } else if (old != std::exchange(old_, old) && !table_.rows.empty()) {
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1),
                           {Qt::ForegroundRole});
    }
}

int ResultModel::RowOf(int number) const {
    const auto row = std::ranges::find(table_.rows, number, &ResultRow::number);
    return row == table_.rows.end() ? -1 : static_cast<int>(row - table_.rows.begin());
}

int ResultModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(table_.rows.size());
}

int ResultModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(table_.columns.size());
}

QVariant ResultModel::data(const QModelIndex& index, int role) const {
    const auto column = static_cast<std::size_t>(index.column());
    const ResultCell& cell = table_.rows[static_cast<std::size_t>(index.row())].cells[column];
    switch (role) {
        case Qt::DisplayRole:
            return ToQt(ShownText(table_.columns[column], cell));
        case kSortRole:
            return SortValue(cell);
        case Qt::TextAlignmentRole:
            return int(Qt::AlignVCenter |
                       (std::holds_alternative<double>(cell) ? Qt::AlignRight : Qt::AlignLeft));
        case Qt::ForegroundRole:
            return Colour(index);
        default:
            return {};
    }
}

QVariant ResultModel::Colour(const QModelIndex& index) const {
    if (old_) {
        const QPalette theme = QApplication::palette();
        return OldResultColour(theme.color(QPalette::Text), theme.color(QPalette::Base));
    }
    const auto& beyond = table_.rows[static_cast<std::size_t>(index.row())].beyond;
    const auto column = static_cast<std::size_t>(index.column());
    if (std::ranges::find(beyond, column) == beyond.end()) return {};
    return BeyondLimitColour();
}

QVariant ResultModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
    const ResultColumn& column = table_.columns[static_cast<std::size_t>(section)];
    const QString unit = column.unit.empty() ? QString() : "\n[" + ToQt(column.unit) + "]";
    return ToQt(column.heading) + unit;
}

}  // namespace idrova
