// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/project.h"

namespace idrova {

/// A record of a table and its number there.
template <typename Record>
struct Numbered {
    int number;
    Record& record;
};

/// The drawn ones among the records 1 .. `used` of a table, ascending: deleted slots are passed
/// over. A record that is deleted meanwhile is passed over too, one that is added is not reached.
template <typename Record>
class DrawnRecords {
  public:
    class Iterator {
      public:
        Iterator(Record* table, int number, int used)
            : table_(table), number_(number), used_(used) {
            PassDeleted();
        }
        Numbered<Record> operator*() const { return {number_, table_[number_]}; }
        Iterator& operator++() {
            ++number_;
            PassDeleted();
            return *this;
        }
        bool operator==(const Iterator& other) const { return number_ == other.number_; }

      private:
        void PassDeleted() {
            while (number_ <= used_ && !table_[number_].IsDrawn()) ++number_;
        }

        Record* table_;
        int number_, used_;
    };

    DrawnRecords(Record* table, int used) : table_(table), used_(used) {}

    Iterator begin() const { return {table_, 1, used_}; }
    Iterator end() const { return {table_, used_ + 1, used_}; }

  private:
    Record* table_;
    int used_;
};

/// `for (const auto& [number, pipe] : DrawnPipes(project))`.
inline DrawnRecords<PipeRec> DrawnPipes(Project& project) {
    return {project.Pipes.data(), project.numtubo};
}
inline DrawnRecords<const PipeRec> DrawnPipes(const Project& project) {
    return {project.Pipes.data(), project.numtubo};
}
inline DrawnRecords<PointRec> DrawnPoints(Project& project) {
    return {project.Points.data(), project.npres};
}
inline DrawnRecords<const PointRec> DrawnPoints(const Project& project) {
    return {project.Points.data(), project.npres};
}

}  // namespace idrova
