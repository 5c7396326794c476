// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/result_tables.h"

#include <cmath>
#include <limits>

#include "base/number_text.h"
#include "results/network_results.h"

namespace idrova {
namespace {

constexpr double kNoNumber = std::numeric_limits<double>::quiet_NaN();

std::string GivenText(bool given) {
    return given ? "given" : "computed";
}

double PerHour(double perSecond) {
    return perSecond * kSecondsPerHour;
}

}  // namespace

ResultTable PipeTable(const Settings& settings, const WorkNetwork& results) {
    const bool rectangular = settings.SectionType == Section::Rectangular;
    ResultTable table{NoteOn::Pipe,
                      {{"pipe", "Pipe", ""},
                       {"from", "From", ""},
                       {"to", "To", ""},
                       {"flow_kg_h", "Flow", "kg/h", 1},
                       {"flow_m3_h", "Flow", "m³/h", 3},
                       {"flow_is", "Flow is", ""},
                       {"velocity_m_s", "Velocity", "m/s", 3},
                       {"reynolds", "Reynolds", ""},
                       {"drop_Pa", "Drop", "Pa", 1},
                       {"friction_Pa_m", "Friction", "Pa/m", 2},
                       {"diameter_mm", rectangular ? "Side a" : "Diameter", "mm", 1},
                       {"length_m", "Length", "m", 2},
                       {"loss_sum", "ΣK", "", 2}},
                      {}};
    if (rectangular) table.columns.push_back({"side_b_mm", "Side b", "mm", 1});
    for (const PipeResult& pipe : PipeResults(settings, results)) {
        ResultRow row{pipe.number,
                      {double(pipe.number), double(pipe.from), double(pipe.to), PerHour(pipe.flow),
                       PerHour(pipe.volumeFlow), GivenText(pipe.flowGiven), pipe.velocity,
                       pipe.reynolds, pipe.drop, pipe.dropPerMetre,
                       pipe.diameter * kMillimetresPerMetre, pipe.length, pipe.lossSum}};
        if (rectangular) row.cells.emplace_back(pipe.sideB * kMillimetresPerMetre);
        table.rows.push_back(std::move(row));
    }
    return table;
}

ResultTable PointTable(const Settings& settings, const WorkNetwork& results, Unit unit) {
    const bool bar = unit == Unit::Bar;
    const double factor = bar ? kPascalPerBar : kPascalPerMilliBar;
    ResultTable table{NoteOn::Point,
                      {{"point", "Point", ""},
                       {"pressure_Pa", "Pressure", "Pa"},
                       bar ? ResultColumn{"pressure_bar", "Pressure", "bar", 4}
                           : ResultColumn{"pressure_mbar", "Pressure", "mbar", 1},
                       {"pressure_is", "Pressure is", ""},
                       {"height_m", "Height", "m"},
                       {"head_m", "Head", "m", 2}},
                      {}};
    for (const PointResult& point : PointResults(settings, results)) {
        table.rows.push_back(
            {point.number,
             {double(point.number), point.pressure, point.pressure / factor, GivenText(point.given),
              point.height, point.head.value_or(kNoNumber)}});
    }
    return table;
}

ResultTable ComponentTable(const WorkNetwork& results) {
    ResultTable table{NoteOn::Cell,
                      {{"cell", "Cell", ""},
                       {"name", "Name", ""},
                       {"kind", "Kind", ""},
                       {"flow_kg_h", "Flow", "kg/h", 1},
                       {"rise_Pa", "Rise", "Pa"},
                       {"drop_Pa", "Drop", "Pa"},
                       {"lowest_flow_kg_h", "Lowest flow", "kg/h", 1},
                       {"highest_flow_kg_h", "Highest flow", "kg/h", 1},
                       {"range", "Range", ""}},
                      {}};
    for (const ComponentResult& component : ComponentResults(results)) {
        const bool pump = component.isPump;
        table.rows.push_back(
            {component.cell,
             {double(component.cell), component.name, pump ? "pump" : "loss",
              PerHour(component.flow), pump ? component.change : kNoNumber,
              pump ? kNoNumber : component.change, pump ? PerHour(component.minFlow) : kNoNumber,
              pump ? PerHour(component.maxFlow) : kNoNumber,
              !pump               ? ""
              : component.inRange ? "within"
                                  : "outside"}});
    }
    return table;
}

std::string ShownText(const ResultColumn& column, const ResultCell& cell) {
    if (const auto* text = std::get_if<std::string>(&cell)) return *text;
    return FixedText(std::get<double>(cell), column.decimals);
}

}  // namespace idrova
