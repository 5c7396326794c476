// SPDX-License-Identifier: GPL-3.0-or-later
#include "hydraulics/component_law.h"

#include <gtest/gtest.h>

#include <cmath>

#include "support/network_run.h"

namespace idrova {
namespace {

/// Pa at Re 50 of water in 0.1 m: 0.00392 kg/s, a hundredth of it makes a fixed drop whole.
constexpr double kFullDropFlow = 0.01 * 50 * 1e-3 * 3.1415 * 0.1 / 4;

struct LawCase {
    const char* name;
    CellKind kind;
    float param1, param2, constant;
    double through, value, slope;
};

constexpr CellKind kPump = CellKind::Pump;
constexpr CellKind kLoss = CellKind::Loss;

/// 3 times half the density times the square of 10 kg/s in 0.1 m.
constexpr double kLossAt10 = 1.5 / 1000 * 100 / (0.00785375 * 0.00785375);

constexpr LawCase kLaws[] = {
    {"loss", kLoss, 3, 0, 0, 10, kLossAt10, kLossAt10 / 5},
    {"loss crossed backwards", kLoss, 3, 0, 0, -10, -kLossAt10, kLossAt10 / 5},
    {"loss at rest", kLoss, 3, 0, 0, 0, 0, 0},
    {"fixed drop before a coefficient", kLoss, 3, 2e4F, 0, 1, 2e4, 0},
    {"fixed drop crossed backwards", kLoss, 0, 2e4F, 0, -1, -2e4, 0},
    {"fixed drop that holds", kLoss, 0, 2e4F, 0, kFullDropFlow / -4, -5e3, 2e4 / kFullDropFlow},
    {"pump of two coefficients", kPump, -20, 1e5F, 0, 10, 98000, -400},
    {"pump with its constant", kPump, -20, -50, 1e5F, 10, 97500, -450},
    {"pump with its highest rise at 5 kg/s", kPump, -20, 200, 1e5F, 6, 100480, -40},
    {"the same below", kPump, -20, 200, 1e5F, 4, 100500, 0},
    {"the same backwards", kPump, -20, 200, 1e5F, -3, 100500, 0},
    {"falling pump backwards", kPump, -20, -50, 1e5F, -3, 1e5, 0},
    {"straight pump backwards", kPump, 0, -50, 1e5F, -3, 1e5, 0},
    {"pump that opens upwards", kPump, 20, -50, 1e5F, 10, 101500, 350},
    {"the same backwards", kPump, 20, -50, 1e5F, -3, 1e5, 0},
};

TEST(ComponentLaw, ByHandInBothDirections) {
    const NetworkBuilder water;
    const PipeRec pipeA{.Diameter = 0.1F};
    for (const LawCase& c : kLaws) {
        SCOPED_TRACE(c.name);
        CellRec cell;
        cell.Kind = c.kind;
        cell.Param1 = c.param1;
        cell.Param2 = c.param2;
        cell.PumpConstant = c.constant;
        for (const int sign : {1, -1}) {
            Component component;
            component.throughSign = sign;
            cell.Placed = true;
            const auto law = [&](double through) {
                component.record = cell;
                return ComponentLaw(water->settings, component, pipeA, sign * through, 1e5, 2e5);
            };
            EXPECT_NEAR(law(c.through).value, c.value, 1e-6 * std::abs(c.value));
            EXPECT_NEAR(sign * law(c.through).byFlow, c.slope, 1e-6 * std::abs(c.slope));
            const double h = 1e-6;
            EXPECT_NEAR(law(c.through + h).value, law(c.through - h).value,
                        2e4 * h / kFullDropFlow * 2);
            cell.Placed = false;
            EXPECT_EQ(law(c.through).value, 0);
        }
        cell.Placed = true;
        EXPECT_EQ(OpensUpwards(cell), c.kind == kPump && c.param1 > 0);
    }
}

TEST(ComponentLaw, GasLosesByItsOwnDensity) {
    NetworkBuilder air;
    MakeAir(*air);
    const PipeRec pipeA{.Diameter = 0.1F};
    CellRec cell;
    cell.Kind = kLoss;
    cell.Param1 = 3;
    cell.Placed = true;
    Component component;
    component.record = cell;
    const auto law = [&](double flow, double start, double end) {
        return ComponentLaw(air->settings, component, pipeA, flow, start, end);
    };
    const double density = 1.2929 * (701325.0 / 101325) * (273.15 / 293.15) / 0.98;
    const double drop = 1.5 / density * std::pow(0.5 / 0.00785375, 2);
    const PressureLaw at = law(0.5, 5e5, 7e5);
    EXPECT_NEAR(at.value, drop, 1e-6 * drop);
    EXPECT_NEAR(at.byFlow, 4 * drop, 1e-5 * drop);
    EXPECT_NEAR(at.byStart, -drop / 701325 / 2, 1e-6 * drop / 701325);
    EXPECT_NEAR(at.byEnd, -drop / 701325 / 2, 1e-6 * drop / 701325);
}

}  // namespace
}  // namespace idrova
