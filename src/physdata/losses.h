// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

#include "physdata/record_db.h"

namespace idrova {

/// One concentrated loss of the file "percon.dat": a coefficient or a fixed drop, the other is 0.
struct LossRecord {
    static constexpr std::string_view kFile = "percon.dat";
    static constexpr std::size_t kNameLimit = 40;

    std::string name;
    float coefficient = 0;
    float fixedDrop = 0;  ///< Pa

    bool operator==(const LossRecord&) const = default;
};

using LossDb = RecordDb<LossRecord>;

void ReadFields(RecordReader& reader, LossRecord& loss);
void WriteFields(RecordWriter& writer, const LossRecord& loss);

/// `Option1` of the loss window: which of its two fields may hold a value.
enum class LossOption { Coefficient = 0, FixedDrop = 1 };

/// The loss window's fields, as shown and as typed.
struct LossFields {
    std::string name;         ///< `Combo1`
    std::string coefficient;  ///< `Text1`
    std::string fixedDrop;    ///< `Text2`, Pa
    LossOption option = LossOption::Coefficient;

    bool operator==(const LossFields&) const = default;
};

/// Selects an option, which empties the other option's field.
void SelectOption(LossFields& fields, LossOption option);

/// A loss chosen in the list. One with both values keeps its fixed drop; one with none changes
/// nothing but the name.
void ShowLoss(LossFields& fields, const LossRecord& loss);

/// `Label2`: the fixed drop in mbar.
std::string MilliBarLabel(const LossFields& fields);

/// The typed numbers as a record.
LossRecord TypedLoss(const LossFields& fields);

}  // namespace idrova
