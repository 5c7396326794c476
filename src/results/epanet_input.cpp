// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/epanet_input.h"

#include <algorithm>
#include <string>
#include <vector>

#include "base/number_text.h"
#include "model/version.h"
#include "results/epanet_curve.h"
#include "results/epanet_network.h"
#include "results/messages.h"
#include "results/network_results.h"

namespace idrova {
namespace {

constexpr double kWaterViscosity = 1e-6;  ///< m2/s: what EPANET counts viscosities by
constexpr double kWaterDensity = 1000;    ///< kg/m3, likewise
constexpr double kSmoothest = 1e-6;       ///< mm: EPANET takes no roughness of 0
constexpr double kPumpReach = 0.3;        ///< of a cell: a pump's nodes stand apart on the map
constexpr double kCellUnits = 278;        ///< about a cell, in the units of the drawing

using Line = std::vector<std::string>;

std::string LineText(const Line& fields) {
    std::string text;
    for (const std::string& field : fields) text += " " + field;
    return text + "\n";
}

/// One line of a comment or a title, whatever stands in the text.
std::string OneLine(std::string_view text) {
    std::string line(text);
    std::ranges::replace_if(
        line, [](char c) { return static_cast<unsigned char>(c) < ' '; }, ' ');
    return line;
}

std::string NodeName(const EpanetNetwork& network, int point) {
    return "P" + GeneralText(network.node[point]);
}

std::string CubicMetresPerHour(const EpanetNetwork& network, double flow) {
    return PlainText(flow * kSecondsPerHour / network.settings.FluidDensity);
}

double FlowThrough(const EpanetNetwork& network, const Component& component) {
    return component.throughSign * double{network.work.WorkPipes[component.pipeA].FlowRate};
}

/// A given pressure is a reservoir, every other node a junction.
std::string Nodes(const EpanetNetwork& network) {
    std::string junctions = "\n[JUNCTIONS]\n;node elevation_m demand_m3/h\n";
    std::string reservoirs = "\n[RESERVOIRS]\n;node head_m\n";
    const auto points = PointResults(network.settings, network.work);
    const auto headOf = [&](int point) {
        return std::ranges::find(points, point, &PointResult::number)->head.value_or(0);
    };
    for (const PointResult& point : points) {
        const int number = point.number;
        if (network.node[number] != number) continue;
        const std::string name = NodeName(network, number);
        if (const int given = GivenPointOf(network, number); given != 0) {
            reservoirs += LineText({name, PlainText(headOf(given))});
        } else {
            junctions += LineText({name, PlainText(point.height),
                                   CubicMetresPerHour(network, DemandAt(network, number))});
        }
    }
    return junctions + reservoirs;
}

std::string Pipes(const EpanetNetwork& network) {
    std::string text =
        "\n[PIPES]\n;link from to length_m diameter_mm roughness_mm minor_loss status\n";
    const double roughness =
        std::max(network.settings.Roughness * kMillimetresPerMetre, kSmoothest);
    for (const auto& [number, pipe] : DrawnPipes(network.work)) {
        text += LineText({"pipe" + GeneralText(number), NodeName(network, pipe.StartPoint),
                          NodeName(network, pipe.EndPoint), PlainText(DecimalDouble(pipe.Length)),
                          PlainText(DiameterOf(network, number) * kMillimetresPerMetre),
                          PlainText(roughness), PlainText(network.minorLoss[number]), "Open"});
    }
    return text;
}

std::string CurveLines(const EpanetNetwork& network, const Component& pump) {
    std::string text = ";PUMP: " + OneLine(pump.record.Name) + "\n";
    const PipeRec& pipeA = network.work.WorkPipes[pump.pipeA];
    for (const auto& [flow, head] :
         HeadCurve(network.settings, pump, pipeA, FlowThrough(network, pump))) {
        text += LineText(
            {"curve" + GeneralText(pump.cell), CubicMetresPerHour(network, flow), PlainText(head)});
    }
    return text;
}

/// A fixed drop, from the side that the flow comes from.
std::string ValveLine(const EpanetNetwork& network, const Component& loss) {
    const bool forward = FlowThrough(network, loss) >= 0;
    const double metres =
        DecimalDouble(loss.record.Param2) / (network.settings.FluidDensity * kGravity);
    return LineText({"drop" + GeneralText(loss.cell),
                     NodeName(network, forward ? loss.high : loss.low),
                     NodeName(network, forward ? loss.low : loss.high),
                     PlainText(DiameterOf(network, loss.pipeA) * kMillimetresPerMetre), "PBV",
                     PlainText(metres), "0 ;", OneLine(loss.record.Name)});
}

/// Pumps, fixed drops and the curves of the pumps.
std::string Links(const EpanetNetwork& network) {
    std::string pumps = "\n[PUMPS]\n;link suction delivery curve\n";
    std::string valves = "\n[VALVES]\n;link from to diameter_mm type drop_m minor_loss\n";
    std::string curves = "\n[CURVES]\n;curve flow_m3/h head_m\n";
    for (const Component& component : network.plan.components) {
        if (!IsLink(component)) continue;
        if (component.record.Kind != CellKind::Pump) {
            valves += ValveLine(network, component);
            continue;
        }
        const std::string number = GeneralText(component.cell);
        pumps += LineText({"pump" + number, NodeName(network, component.low),
                           NodeName(network, component.high), "HEAD", "curve" + number, ";",
                           OneLine(component.record.Name)});
        curves += CurveLines(network, component);
    }
    return pumps + valves + curves;
}

std::string Options(const Settings& settings) {
    const double kinematic = settings.FluidViscosity / settings.FluidDensity;
    return "\n[OPTIONS]\n; " + OneLine(settings.FluidName) + ", density " +
           PlainText(settings.FluidDensity) + " kg/m3, dynamic viscosity " +
           PlainText(settings.FluidViscosity) + " N s/m2\n Units CMH\n Headloss D-W\n" +
           " Specific Gravity " + PlainText(settings.FluidDensity / kWaterDensity) +
           "\n Viscosity " + PlainText(kinematic / kWaterViscosity) +
           "\n Trials 200\n Accuracy 0.00001\n Unbalanced Continue 10\n" +
           "\n[TIMES]\n Duration 0\n\n[REPORT]\n Nodes All\n Links All\n";
}

/// Columns and rows, from the lower left.
struct MapPlace {
    double column = 0, row = 0;
};

/// A node beside a pump or a fixed drop moves a little along its pipe.
MapPlace PlaceOf(const EpanetNetwork& network, int point) {
    const PointRec& record = network.work.WorkPoints[point];
    MapPlace place{record.X / kCellUnits, -record.Y / kCellUnits};
    const auto towards = [](int from, int to) {
        if (from == to) return 0.0;
        return to > from ? kPumpReach : -kPumpReach;
    };
    for (const Component& component : network.plan.components) {
        if (!IsLink(component) || (component.high != point && component.low != point)) continue;
        const PipeRec& pieceA = network.work.WorkPipes[component.pipeA];
        const PipeRec& pipe =
            pieceA.IsEnd(point) ? pieceA : network.work.WorkPipes[component.pipeB];
        const int sign = pipe.StartPoint == point ? 1 : -1;
        place.column += sign * towards(pipe.X1, pipe.X2);
        place.row -= sign * towards(pipe.Y1, pipe.Y2);
    }
    return place;
}

/// Only a drawing has places.
std::string Coordinates(const EpanetNetwork& network) {
    std::string text = "\n[COORDINATES]\n;node x y\n";
    if (network.settings.Mode != WorkMode::Graphic) return text;
    for (const auto& [number, point] : DrawnPoints(network.work)) {
        if (network.node[number] != number) continue;
        const MapPlace place = PlaceOf(network, number);
        text +=
            LineText({NodeName(network, number), PlainText(place.column), PlainText(place.row)});
    }
    return text;
}

/// Behind a word of ours: at the start of a line a bracket would open a section.
std::string DescriptionLine(std::string_view description) {
    return description.empty() ? "" : "\n Description: " + OneLine(description);
}

}  // namespace

Result<std::string> EpanetInput(const RunRecord& run, std::string_view name,
                                std::string_view description) {
    if (!run.results) return Failure{std::string(kNoResultsToExport)};
    if (run.settings.EquationType == Equation::Compressible) {
        return Failure{std::string(kNoGasInEpanet)};
    }
    const EpanetNetwork network = EpanetNetworkOf(run);
    return "[TITLE]\n Project: " + OneLine(name) + DescriptionLine(description) +
           "\n Computation: " + OutcomeLine(run.outcome) + "\n Written by Idrova " + VersionText() +
           "\n" + Nodes(network) + Pipes(network) + Links(network) + Options(network.settings) +
           Coordinates(network) + "\n[END]\n";
}

}  // namespace idrova
