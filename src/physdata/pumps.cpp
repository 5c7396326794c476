// SPDX-License-Identifier: GPL-3.0-or-later
#include "physdata/pumps.h"

#include "base/number_text.h"
#include "model/settings.h"

namespace idrova {
namespace {

std::string PrevalenceField(float pascal) {
    return FormatNumber(MetresFromPascal(DecimalDouble(pascal)), "####.###");
}

std::string FlowField(float flow) {
    return FormatNumber(ScaledSingle(flow, kSecondsPerHour), "####.###");
}

float TypedPrevalence(std::string_view text) {
    return ToSingle(PascalFromMetres(ReadNumber(text)));
}

float TypedFlow(std::string_view text) {
    return ToSingle(ReadNumber(text) / kSecondsPerHour);
}

}  // namespace

void ReadFields(RecordReader& reader, PumpRecord& pump) {
    pump.pMax = reader.Single();
    pump.qMin = reader.Single();
    pump.pMin = reader.Single();
    pump.qMax = reader.Single();
}

void WriteFields(RecordWriter& writer, const PumpRecord& pump) {
    writer.Single(pump.pMax).Single(pump.qMin).Single(pump.pMin).Single(pump.qMax);
}

std::optional<PumpCurve> CurveOf(const PumpRecord& pump) {
    return CurveThrough(DecimalDouble(pump.pMax), DecimalDouble(pump.qMin),
                        DecimalDouble(pump.pMin), DecimalDouble(pump.qMax));
}

std::optional<PumpChart> ChartOf(const PumpRecord& pump) {
    const std::optional<PumpCurve> curve = CurveOf(pump);
    if (!curve) return std::nullopt;
    return ChartBetween(*curve, DecimalDouble(pump.qMin), DecimalDouble(pump.qMax));
}

PumpFields ShowPump(const PumpRecord& pump) {
    return {.name = pump.name,
            .maxPrevalence = PrevalenceField(pump.pMax),
            .minFlow = FlowField(pump.qMin),
            .minPrevalence = PrevalenceField(pump.pMin),
            .maxFlow = FlowField(pump.qMax)};
}

PumpRecord TypedPump(const PumpFields& fields) {
    return {.name = fields.name,
            .pMax = TypedPrevalence(fields.maxPrevalence),
            .qMin = TypedFlow(fields.minFlow),
            .pMin = TypedPrevalence(fields.minPrevalence),
            .qMax = TypedFlow(fields.maxFlow)};
}

}  // namespace idrova
