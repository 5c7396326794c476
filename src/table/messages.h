// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "base/message_boxes.h"
#include "base/number_text.h"
#include "table/table_block.h"

namespace idrova {

constexpr FixedMessage kPressuresDiffer{
    "Different values of pressure have been defined for the same point", "Coherence check"};
/// `fault` as "3 is missing".
inline MessageBox PointsLeaveGap(const std::string& fault) {
    return {"The point numbers must run from 1 without gaps: " + fault, "Coherence check"};
}

inline MessageBox PartLeftOut(const PasteLoss& loss) {
    const auto part = [](int lost, int of, const char* what) {
        return lost == 0 ? "" : GeneralText(lost) + " of " + GeneralText(of) + what;
    };
    const std::string rows = part(loss.rowsLost, loss.rows, " rows");
    const std::string columns = part(loss.columnsLost, loss.columns, " columns");
    return {rows + (rows.empty() || columns.empty() ? "" : " and ") + columns +
                " do not fit into the table. Do you want to paste the others ?",
            "Paste", BoxIcon::Question, BoxButtons::YesNo};
}
constexpr FixedMessage kNoRoomForRows{"The last rows of the table are filled: there is no room",
                                      "Insert rows", BoxIcon::Information};

constexpr FixedMessage kCancelFlowRates{"Do you want to cancel all the flow rates ?",
                                        "Fast setting", BoxIcon::Critical, BoxButtons::YesNo};
constexpr FixedMessage kCancelLengths{"Do you want to cancel all the pipes length ?",
                                      "Fast setting", BoxIcon::Critical, BoxButtons::YesNo};
constexpr FixedMessage kCancelDiameters{"Do you want to cancel all the diameters ?", "Fast setting",
                                        BoxIcon::Critical, BoxButtons::YesNo};

}  // namespace idrova
