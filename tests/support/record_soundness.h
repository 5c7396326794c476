// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <string>
#include <string_view>

#include "physdata/fluids.h"
#include "physdata/losses.h"
#include "physdata/pumps.h"

namespace idrova {

inline bool AllFinite(std::initializer_list<double> values) {
    return std::all_of(values.begin(), values.end(), [](double v) { return std::isfinite(v); });
}

inline bool IsFinite(const FluidRecord& fluid) {
    return AllFinite({fluid.density, fluid.viscosity, fluid.compressibility, fluid.specificHeat,
                      fluid.conductivity});
}

inline bool IsFinite(const PumpRecord& pump) {
    const PumpCurve curve = CurveOf(pump).value_or(PumpCurve{});
    return AllFinite({pump.pMax, pump.qMin, pump.pMin, pump.qMax, curve.a, curve.b, curve.c});
}

inline bool IsFinite(const LossRecord& loss) {
    return AllFinite({loss.coefficient, loss.fixedDrop});
}

/// The rule that reading `bytes` as a database breaks; empty when none.
template <typename Record>
std::string BrokenRule(std::string_view bytes) {
    const auto db = DecodeRecords<Record>(bytes);
    for (int slot = 1; slot <= db.count; ++slot) {
        if (!NameFits(db[slot])) return "names fit their records";
        if (!IsFinite(db[slot])) return "numbers are finite";
    }
    const bool whole = bytes.size() == static_cast<std::size_t>(db.count) * kRecordBytes;
    if (whole != (db.fault == RecordFault::None)) return "a fault is told when bytes are lost";
    auto again = DecodeRecords<Record>(EncodeRecords(db));
    again.fault = db.fault;
    return again == db ? "" : "what is written reads back";
}

}  // namespace idrova
