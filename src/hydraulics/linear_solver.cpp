// SPDX-License-Identifier: GPL-3.0-or-later
#include "hydraulics/linear_solver.h"

#include <algorithm>
#include <array>
#include <cassert>
#include <cmath>
#include <cstddef>
#include <utility>

#include "hydraulics/unknown_set.h"

namespace idrova {
namespace {

using Index = std::size_t;
template <typename T>
using PerUnknown = std::array<T, kMaxUnknowns>;

/// One elimination. A pivot ends up on the diagonal, so one set tells which rows and which columns
/// are still open. Network matrices are nearly empty: the sets of entries that may differ from 0
/// (by row and by column) let each step visit only what it changes.
class Elimination {
  public:
    Elimination(std::span<double> a, Index n, std::span<double> b, Inverse inverse)
        : a_(a.data()), b_(b.data()), n_(n), inverse_(inverse), open_(UnknownSet::FirstOnes(n)) {
        for (Index row = 0; row < n_; ++row) {
            rows_[row] = a_ + row * n_;
            FindEntries(row);
            FindLargest(row);
        }
    }

    Solve Run() {
        const Solve end = Eliminate();
        PutRowsInOrder();
        if (end == Solve::Singular) return end;
        if (inverse_ == Inverse::Wanted) Unscramble();
        for (Index i = 0; i < n_; ++i) b_[i] += 0.0;  // a zero of the solution has no sign
        return end;
    }

  private:
    /// A row's largest entry in the open columns, the last one among equals.
    struct Candidate {
        double magnitude = 0;
        Index column = 0;
    };

    struct Entry {
        Index column = 0;
        double value = 0;
    };

    Solve Eliminate() {
        for (Index step = 0; step < n_; ++step) {
            const Index row = PivotRow();
            // Which zero a row of zeros offers is not kept up to date: it is the last one.
            const bool allZero = largest_[row].magnitude == 0;
            const Index col = allZero ? open_.Last() : largest_[row].column;
            rowIndex_[step] = row;
            columnIndex_[step] = col;
            if (row != col) SwapRows(row, col);
            if (rows_[col][col] == 0) return Solve::Singular;
            open_.Remove(col);
            Normalise(col);
            EliminateColumn(col);
        }
        return Solve::Solved;
    }

    void FindEntries(Index row) {
        for (Index column = 0; column < n_; ++column) {
            if (rows_[row][column] == 0) continue;
            columnsOf_[row].Insert(column);
            rowsOf_[column].Insert(row);
        }
    }

    void FindLargest(Index row) {
        UnknownSet columns = columnsOf_[row];
        columns &= open_;
        Candidate best;
        columns.ForEach([&](Index column) {
            const double magnitude = std::abs(rows_[row][column]);
            if (magnitude >= best.magnitude) best = {magnitude, column};
        });
        largest_[row] = best;
    }

    Index PivotRow() const {
        Candidate best;
        open_.ForEach([&](Index row) {
            if (largest_[row].magnitude >= best.magnitude) best = {largest_[row].magnitude, row};
        });
        return best.column;
    }

    void SwapRows(Index row, Index col) {
        UnknownSet columns = columnsOf_[row];
        columns |= columnsOf_[col];
        columns.ForEach([&](Index column) {
            UnknownSet& rows = rowsOf_[column];
            const bool first = rows.Has(row);
            if (first == rows.Has(col)) return;
            rows.Insert(first ? col : row);
            rows.Remove(first ? row : col);
        });
        std::swap(rows_[row], rows_[col]);
        std::swap(b_[row], b_[col]);
        std::swap(columnsOf_[row], columnsOf_[col]);
        std::swap(largest_[row], largest_[col]);
    }

    /// Divides the pivot row by its pivot and notes the entries that can change other rows: those
    /// in open columns first, and those in closed ones when the inverse is wanted.
    void Normalise(Index col) {
        double* pivot = rows_[col];
        const double pivinv = 1 / pivot[col];
        pivot[col] = 1;
        b_[col] *= pivinv;
        if (!std::isfinite(pivinv)) BecomeDense();
        columnsOf_[col].ForEach([&](Index column) { pivot[column] *= pivinv; });
        if (skipsZeros_ && !StepIsFinite(col)) BecomeDense();

        entryCount_ = 0;
        columnsOf_[col].ForEach([&](Index column) {
            if (open_.Has(column)) entries_[entryCount_++] = {column, pivot[column]};
        });
        openEntryCount_ = entryCount_;
        if (inverse_ == Inverse::NotWanted) return;
        columnsOf_[col].ForEach([&](Index column) {
            if (!open_.Has(column)) entries_[entryCount_++] = {column, pivot[column]};
        });
    }

    bool StepIsFinite(Index col) const {
        bool finite = std::isfinite(b_[col]);
        columnsOf_[col].ForEach(
            [&](Index column) { finite = finite && std::isfinite(rows_[col][column]); });
        rowsOf_[col].ForEach([&](Index row) { finite = finite && std::isfinite(rows_[row][col]); });
        return finite;
    }

    /// Zero times infinity is not zero: from here on nothing may be left out.
    void BecomeDense() {
        skipsZeros_ = false;
        columnsOf_.fill(UnknownSet::FirstOnes(n_));
        rowsOf_.fill(UnknownSet::FirstOnes(n_));
    }

    void EliminateColumn(Index col) {
        UnknownSet changed;
        rowsOf_[col].ForEach([&](Index row) {
            if (row == col) return;
            const double d = rows_[row][col];
            rows_[row][col] = 0;
            if (d == 0 && skipsZeros_) return;
            changed.Insert(row);
            columnsOf_[row] |= columnsOf_[col];
            b_[row] -= b_[col] * d;
            SubtractPivotRow(row, col, d);
        });
        for (Index i = 0; i < entryCount_; ++i) rowsOf_[entries_[i].column] |= changed;
    }

    void SubtractPivotRow(Index row, Index col, double d) {
        const bool open = open_.Has(row);
        if (3 * entryCount_ > n_) {
            SubtractWhole(rows_[row], rows_[col], d);
            if (open) FindLargest(row);
        } else if (open) {
            SubtractAndCompare(row, col, d);
        } else {
            Subtract(row, d, 0);
        }
    }

    /// Where a third of the entries are not 0, walking along the row beats picking them.
    void SubtractWhole(double* values, const double* pivot, double d) const {
        for (Index column = 0; column < n_; ++column) values[column] -= pivot[column] * d;
    }

    void Subtract(Index row, double d, Index from) {
        double* values = rows_[row];
        for (Index i = from; i < entryCount_; ++i)
            values[entries_[i].column] -= entries_[i].value * d;
    }

    /// Subtracts from an open row and keeps its largest candidate, which only a changed entry can
    /// overtake.
    void SubtractAndCompare(Index row, Index col, double d) {
        double* values = rows_[row];
        const Candidate old = largest_[row];
        bool oldChanged = old.column == col;
        Candidate best;
        for (Index i = 0; i < openEntryCount_; ++i) {
            const Index column = entries_[i].column;
            const double value = values[column] - entries_[i].value * d;
            values[column] = value;
            oldChanged = oldChanged || column == old.column;
            const double magnitude = std::abs(value);
            if (magnitude >= best.magnitude) best = {magnitude, column};
        }
        Subtract(row, d, openEntryCount_);
        const bool overtakes = best.magnitude > old.magnitude ||
                               (best.magnitude == old.magnitude && best.column >= old.column);
        if (overtakes) {
            largest_[row] = best;
        } else if (oldChanged) {
            FindLargest(row);
        }
    }

    /// Rows were exchanged by their addresses; now they move.
    void PutRowsInOrder() {
        if (inverse_ == Inverse::NotWanted) return;
        for (Index row = 0; row < n_; ++row) {
            double* place = a_ + row * n_;
            if (rows_[row] == place) continue;
            const auto other = std::find(rows_.begin(), rows_.end(), place);
            std::swap_ranges(place, place + n_, rows_[row]);
            *other = rows_[row];
            rows_[row] = place;
        }
    }

    void Unscramble() {
        for (Index row = 0; row < n_; ++row) {
            double* values = rows_[row];
            for (Index l = n_; l-- > 0;) std::swap(values[rowIndex_[l]], values[columnIndex_[l]]);
        }
    }

    double* a_;
    double* b_;
    Index n_;
    Inverse inverse_;
    UnknownSet open_;
    bool skipsZeros_ = true;
    PerUnknown<double*> rows_{};
    PerUnknown<UnknownSet> columnsOf_{};  ///< of each row: entries that may differ from 0
    PerUnknown<UnknownSet> rowsOf_{};     ///< of each column: the same
    PerUnknown<Candidate> largest_{};     ///< of each open row
    PerUnknown<Entry> entries_{};         ///< of the pivot row
    Index openEntryCount_ = 0;
    Index entryCount_ = 0;
    PerUnknown<Index> rowIndex_{};
    PerUnknown<Index> columnIndex_{};
};

}  // namespace

Solve SolveLinearSystem(std::span<double> a, int n, std::span<double> b, Inverse inverse) {
    assert(n >= 0 && n <= kMaxUnknowns);
    return Elimination(a, static_cast<Index>(n), b, inverse).Run();
}

}  // namespace idrova
