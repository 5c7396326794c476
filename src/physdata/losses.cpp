// SPDX-License-Identifier: GPL-3.0-or-later
#include "physdata/losses.h"

#include "base/number_text.h"
#include "model/settings.h"

namespace idrova {

void ReadFields(RecordReader& reader, LossRecord& loss) {
    loss.coefficient = reader.Single();
    loss.fixedDrop = reader.Single();
}

void WriteFields(RecordWriter& writer, const LossRecord& loss) {
    writer.Single(loss.coefficient).Single(loss.fixedDrop);
}

void SelectOption(LossFields& fields, LossOption option) {
    fields.option = option;
    if (option == LossOption::Coefficient) {
        fields.fixedDrop.clear();
    } else {
        fields.coefficient.clear();
    }
}

void ShowLoss(LossFields& fields, const LossRecord& loss) {
    fields.name = loss.name;
    if (loss.coefficient != 0) {
        fields.coefficient = GeneralText(loss.coefficient);
        SelectOption(fields, LossOption::Coefficient);
    }
    if (loss.fixedDrop != 0) {
        fields.fixedDrop = GeneralText(loss.fixedDrop);
        SelectOption(fields, LossOption::FixedDrop);
    }
}

std::string MilliBarLabel(const LossFields& fields) {
    constexpr double atmosphere = kPascalPerBar;
    return FormatNumber(ReadNumber(fields.fixedDrop) / atmosphere * 1000, "###.###");
}

LossRecord TypedLoss(const LossFields& fields) {
    return {.name = fields.name,
            .coefficient = ToSingle(ReadNumber(fields.coefficient)),
            .fixedDrop = ToSingle(ReadNumber(fields.fixedDrop))};
}

}  // namespace idrova
