// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/epanet_input.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>
#include <vector>

#include "base/number_text.h"
#include "hydraulics/component_law.h"
#include "hydraulics/network_plan.h"
#include "hydraulics/pipe_drop.h"
#include "model/version.h"
#include "results/messages.h"
#include "results/network_results.h"

namespace idrova {
namespace {

constexpr double kWaterViscosity = 1e-6;  ///< m2/s: what EPANET counts viscosities by
constexpr double kWaterDensity = 1000;    ///< kg/m3, likewise
constexpr double kSmoothest = 1e-6;       ///< mm: EPANET takes no roughness of 0
constexpr double kLeastFall = 1e-3;       ///< of the highest head, between points of a curve
constexpr double kPumpReach = 0.3;        ///< of a cell: a pump's nodes stand apart on the map
constexpr double kBeyond = 1.25;          ///< of the working point, for a range that ends there
constexpr double kAtEnd = 1.05;           ///< times the working point, likewise

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

class EpanetWriter {
  public:
    explicit EpanetWriter(const RunRecord& run)
        : settings_(run.settings), work_(*run.results), plan_(PlanNetwork(work_)) {
        std::iota(node_.begin(), node_.end(), 0);
        for (const auto& [number, pipe] : DrawnPipes(work_)) minorLoss_[number] = pipe.LossSum;
        for (const Component& component : plan_.components) {
            if (component.high != 0) PlaceComponent(component);
        }
        for (const PointResult& point : PointResults(settings_, work_))
            points_[point.number] = point;
    }

    std::string Text(std::string_view name, std::string_view description) {
        WriteNodes();
        WritePipes();
        WriteComponents();
        return "[TITLE]\n Project: " + OneLine(name) + "\n " + OneLine(description) +
               "\n Written by Idrova " + VersionText() + "\n" +
               "\n[JUNCTIONS]\n;node elevation_m demand_m3/h\n" + junctions_ +
               "\n[RESERVOIRS]\n;node head_m\n" + reservoirs_ +
               "\n[PIPES]\n;link from to length_m diameter_mm roughness_mm minor_loss status\n" +
               pipes_ + "\n[PUMPS]\n;link suction delivery curve\n" + pumps_ +
               "\n[VALVES]\n;link from to diameter_mm type drop_m minor_loss\n" + valves_ +
               "\n[CURVES]\n;curve flow_m3/h head_m\n" + curves_ + Options() +
               "\n[COORDINATES]\n;node column row\n" + coordinates_ + "\n[END]\n";
    }

  private:
    /// Points that nothing but a coefficient or a plain connection parts are one node.
    void PlaceComponent(const Component& component) {
        const CellRec& record = component.record;
        const bool link = record.Placed && (record.Kind == CellKind::Pump || record.Param2 != 0);
        if (link) return;
        node_[std::max(component.high, component.low)] = std::min(component.high, component.low);
        if (!record.Placed) return;
        // The coefficient counts on the velocity in pipe A. A pressure that is given between that
        // pipe and the loss puts it on the other side.
        const int pointA = PointOfPipe(component, component.pipeA);
        if (work_.WorkPressureUnknown[pointA]) {
            minorLoss_[component.pipeA] += record.Param1;
        } else {
            const double ratio = DiameterOf(component.pipeB) / DiameterOf(component.pipeA);
            minorLoss_[component.pipeB] += record.Param1 * std::pow(ratio, 4);
        }
    }

    static bool Ends(const PipeRec& pipe, int point) { return point != 0 && pipe.IsEnd(point); }

    int PointOfPipe(const Component& component, int pipe) const {
        return Ends(work_.WorkPipes[pipe], component.high) ? component.high : component.low;
    }

    double DiameterOf(int pipe) const {
        const PipeRec& record = work_.WorkPipes[pipe];
        return SectionGeometry(settings_, DecimalDouble(record.Diameter),
                               DecimalDouble(record.OuterSize))
            .hydraulicDiameter;
    }

    double Metres(double pascal) const { return pascal / (settings_.FluidDensity * kGravity); }
    double CubicMetresPerHour(double flow) const {
        return flow * kSecondsPerHour / settings_.FluidDensity;
    }

    int NodeOf(int point) const { return node_[point]; }
    std::string NodeName(int point) const { return "P" + GeneralText(NodeOf(point)); }

    /// What leaves the network through an open end, kg/s.
    double DemandAt(int point) const {
        double demand = 0;
        for (int i = 1; i <= work_.WorkPipeCount; ++i) {
            const PipeRec& pipe = work_.WorkPipes[i];
            if (!pipe.IsDrawn() || !pipe.IsEnd(point)) continue;
            demand += pipe.FlowFromPoint == point ? -pipe.FlowRate : pipe.FlowRate;
        }
        return demand;
    }

    bool IsOpenEnd(int point) const {
        const auto holds = [point](const Component& component) {
            return component.pipeA != 0 && (component.high == point || component.low == point);
        };
        return plan_.pipesAtPoint[point] == 1 && std::ranges::none_of(plan_.components, holds);
    }

    /// The point of a node whose pressure is given; 0 when there is none.
    int GivenPointOf(int node) const {
        for (int i = 1; i <= work_.WorkPointCount; ++i) {
            const bool given = work_.WorkPoints[i].IsDrawn() && !work_.WorkPressureUnknown[i];
            if (given && NodeOf(i) == node) return i;
        }
        return 0;
    }

    void WriteNodes() {
        for (int i = 1; i <= work_.WorkPointCount; ++i) {
            if (!work_.WorkPoints[i].IsDrawn() || NodeOf(i) != i) continue;
            if (const int given = GivenPointOf(i); given != 0) {
                const double head = points_[given].head.value_or(0);
                reservoirs_ += LineText({NodeName(i), PlainText(head)});
            } else {
                const double demand = IsOpenEnd(i) ? DemandAt(i) : 0;
                junctions_ += LineText({NodeName(i), PlainText(points_[i].height),
                                        PlainText(CubicMetresPerHour(demand))});
            }
            WritePlace(i);
        }
    }

    /// Columns from the left and rows upwards. Only a drawing has places.
    void WritePlace(int point) {
        if (settings_.Mode != WorkMode::Graphic) return;
        const PointRec& record = work_.WorkPoints[point];
        double column = record.X;
        double row = -record.Y;
        for (const Component& component : plan_.components) {
            const bool here = component.high == point || component.low == point;
            if (!here || NodeOf(component.high) == NodeOf(component.low)) continue;
            const PipeRec& pipe = work_.WorkPipes[PipeAt(component, point)];
            const bool starts = pipe.StartPoint == point;
            const auto towards = [](int from, int to) {
                if (from == to) return 0;
                return to > from ? 1 : -1;
            };
            column += kPumpReach * kCellUnits *
                      (starts ? towards(pipe.X1, pipe.X2) : towards(pipe.X2, pipe.X1));
            row -= kPumpReach * kCellUnits *
                   (starts ? towards(pipe.Y1, pipe.Y2) : towards(pipe.Y2, pipe.Y1));
        }
        coordinates_ += LineText(
            {NodeName(point), PlainText(column / kCellUnits), PlainText(row / kCellUnits)});
    }

    int PipeAt(const Component& component, int point) const {
        return Ends(work_.WorkPipes[component.pipeA], point) ? component.pipeA : component.pipeB;
    }

    void WritePipes() {
        const double roughness = std::max(settings_.Roughness * kMillimetresPerMetre, kSmoothest);
        for (int i = 1; i <= work_.WorkPipeCount; ++i) {
            const PipeRec& pipe = work_.WorkPipes[i];
            if (!pipe.IsDrawn()) continue;
            pipes_ += LineText({"pipe" + GeneralText(i), NodeName(pipe.StartPoint),
                                NodeName(pipe.EndPoint), PlainText(DecimalDouble(pipe.Length)),
                                PlainText(DiameterOf(i) * kMillimetresPerMetre),
                                PlainText(roughness), PlainText(minorLoss_[i]), "Open"});
        }
    }

    void WriteComponents() {
        for (const Component& component : plan_.components) {
            const CellRec& record = component.record;
            if (component.high == 0 || !record.Placed) continue;
            if (record.Kind == CellKind::Pump) WritePump(component);
            if (record.Kind == CellKind::Loss && record.Param2 != 0) WriteValve(component);
        }
    }

    double FlowThrough(const Component& component) const {
        return component.throughSign * double{work_.WorkPipes[component.pipeA].FlowRate};
    }

    void WritePump(const Component& component) {
        const std::string number = GeneralText(component.cell);
        const std::string name = " ; " + OneLine(component.record.Name);
        pumps_ += " pump" + number + " " + NodeName(component.low) + " " +
                  NodeName(component.high) + " HEAD curve" + number + name + "\n";
        curves_ += ";PUMP:" + name.substr(2) + "\n";
        for (const auto& [flow, head] : CurveOf(component)) {
            curves_ +=
                LineText({"curve" + number, PlainText(CubicMetresPerHour(flow)), PlainText(head)});
        }
    }

    struct CurvePoint {
        double flow = 0;  ///< kg/s
        double head = 0;  ///< m
    };

    /// Without flow, at the working point, at the end of the range; the head falls from each to the
    /// next.
    std::array<CurvePoint, 3> CurveOf(const Component& component) const {
        const double range = component.record.MaxFlow;
        const double most = range > 0 ? range : 1;
        const double working = FlowThrough(component);
        std::array<CurvePoint, 3> curve;
        curve[0].head = HeadAt(component, 0);
        const double middle = IsBelow(component, working, curve[0].head) ? working : most * 0.7;
        curve[1].flow = middle;
        curve[2].flow = most > middle * kAtEnd ? most : middle * kBeyond;
        const double fall = kLeastFall * std::abs(curve[0].head);
        for (std::size_t i = 1; i < curve.size(); ++i) {
            curve[i].head = std::min(HeadAt(component, curve[i].flow), curve[i - 1].head - fall);
        }
        return curve;
    }

    bool IsBelow(const Component& component, double flow, double head) const {
        return flow > 0 && HeadAt(component, flow) < head * (1 - kLeastFall);
    }

    double HeadAt(const Component& component, double through) const {
        const PipeRec& pipe = work_.WorkPipes[component.pipeA];
        const double flow = component.throughSign * through;
        return Metres(ComponentLaw(settings_, component, pipe, flow, 0, 0).value);
    }

    /// From the side that the flow comes from.
    void WriteValve(const Component& component) {
        const bool forward = FlowThrough(component) >= 0;
        valves_ += " drop" + GeneralText(component.cell) + " " +
                   NodeName(forward ? component.high : component.low) + " " +
                   NodeName(forward ? component.low : component.high) + " " +
                   PlainText(DiameterOf(component.pipeA) * kMillimetresPerMetre) + " PBV " +
                   PlainText(Metres(DecimalDouble(component.record.Param2))) + " 0 ; " +
                   OneLine(component.record.Name) + "\n";
    }

    std::string Options() const {
        const double kinematic = settings_.FluidViscosity / settings_.FluidDensity;
        return "\n[OPTIONS]\n; " + OneLine(settings_.FluidName) + ", density " +
               PlainText(settings_.FluidDensity) + " kg/m3, dynamic viscosity " +
               PlainText(settings_.FluidViscosity) + " N s/m2\n Units CMH\n Headloss D-W\n" +
               " Specific Gravity " + PlainText(settings_.FluidDensity / kWaterDensity) +
               "\n Viscosity " + PlainText(kinematic / kWaterViscosity) +
               "\n Trials 200\n Accuracy 0.00001\n Unbalanced Continue 10\n" +
               "\n[TIMES]\n Duration 0\n\n[REPORT]\n Nodes All\n Links All\n";
    }

    static constexpr double kCellUnits = 278;  ///< about a cell, in the units of the drawing

    const Settings& settings_;
    const WorkNetwork& work_;
    const NetworkPlan plan_;
    std::array<int, kMaxPoints + 1> node_{};  ///< the lowest point of each point's node
    std::array<double, kMaxPipes + 1> minorLoss_{};
    std::array<PointResult, kMaxPoints + 1> points_;
    std::string junctions_, reservoirs_, pipes_, pumps_, valves_, curves_, coordinates_;
};

}  // namespace

Result<std::string> EpanetInput(const RunRecord& run, std::string_view name,
                                std::string_view description) {
    if (!run.results) return Failure{std::string(kNoResultsToExport)};
    if (run.settings.EquationType == Equation::Compressible) {
        return Failure{std::string(kNoGasInEpanet)};
    }
    return EpanetWriter(run).Text(name, description);
}

}  // namespace idrova
