// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>

#include "hydraulics/linear_solver.h"

namespace idrova {

/// A set of rows or columns, 0 .. `kMaxUnknowns` - 1, visited in ascending order.
class UnknownSet {
  public:
    static UnknownSet FirstOnes(std::size_t count) {
        UnknownSet set;
        for (std::size_t i = 0; i < count; ++i) set.Insert(i);
        return set;
    }

    bool Has(std::size_t i) const { return (words_[i / kBits] >> (i % kBits) & 1U) != 0; }
    void Insert(std::size_t i) { words_[i / kBits] |= Bit(i); }
    void Remove(std::size_t i) { words_[i / kBits] &= ~Bit(i); }

    UnknownSet& operator|=(const UnknownSet& other) {
        for (std::size_t w = 0; w < kWords; ++w) words_[w] |= other.words_[w];
        return *this;
    }

    UnknownSet& operator&=(const UnknownSet& other) {
        for (std::size_t w = 0; w < kWords; ++w) words_[w] &= other.words_[w];
        return *this;
    }

    /// The largest member; the set must not be empty.
    std::size_t Last() const {
        std::size_t w = kWords - 1;
        while (words_[w] == 0) --w;
        return w * kBits + kBits - 1 - static_cast<std::size_t>(std::countl_zero(words_[w]));
    }

    template <typename Visit>
    void ForEach(Visit visit) const {
        for (std::size_t w = 0; w < kWords; ++w) {
            for (std::uint64_t rest = words_[w]; rest != 0; rest &= rest - 1) {
                visit(w * kBits + static_cast<std::size_t>(std::countr_zero(rest)));
            }
        }
    }

  private:
    static constexpr std::size_t kBits = 64;
    static constexpr std::size_t kWords = (kMaxUnknowns + kBits - 1) / kBits;

    static std::uint64_t Bit(std::size_t i) { return std::uint64_t{1} << (i % kBits); }

    std::array<std::uint64_t, kWords> words_{};
};

}  // namespace idrova
