// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "physdata/pump_curve.h"
#include "physdata/record_db.h"

namespace idrova {

/// One pump of the file "pompe.dat", by two points of its catalogue curve.
struct PumpRecord {
    static constexpr std::string_view kFile = "pompe.dat";
    static constexpr std::size_t kNameLimit = 32;

    std::string name;
    float pMax = 0;  ///< prevalence at `qMin`, Pa
    float qMin = 0;  ///< kg/s
    float pMin = 0;  ///< prevalence at `qMax`, Pa
    float qMax = 0;  ///< kg/s

    bool operator==(const PumpRecord&) const = default;
};

using PumpDb = RecordDb<PumpRecord>;

void ReadFields(RecordReader& reader, PumpRecord& pump);
void WriteFields(RecordWriter& writer, const PumpRecord& pump);

/// The curve through the pump's two points; nothing when its flow rates are equal.
std::optional<PumpCurve> CurveOf(const PumpRecord& pump);

/// The chart of the curve; nothing when the flow rates are equal: it is then not drawn again.
std::optional<PumpChart> ChartOf(const PumpRecord& pump);

/// The texts of the pump window's fields, as shown and as typed.
struct PumpFields {
    std::string name;           ///< `Combo1`
    std::string maxPrevalence;  ///< `Text1`, m
    std::string minFlow;        ///< `Text2`, kg/h
    std::string minPrevalence;  ///< `Text3`, m
    std::string maxFlow;        ///< `Text4`, kg/h

    bool operator==(const PumpFields&) const = default;
};

/// What the window shows of a pump chosen in its list.
PumpFields ShowPump(const PumpRecord& pump);

/// The typed numbers as a record.
PumpRecord TypedPump(const PumpFields& fields);

}  // namespace idrova
