// SPDX-License-Identifier: GPL-3.0-or-later
#include "hydraulics/pipe_drop.h"

#include <gtest/gtest.h>

#include <cmath>

namespace idrova {
namespace {

Settings Water() {
    Settings settings;
    settings.FluidDensity = 1000;
    settings.FluidViscosity = 1e-3;
    return settings;
}

/// Mass flow in a 0.1 m water pipe, with pi as 3.1415.
double FlowAt(double reynolds) {
    return reynolds * 0.00785375 * 1e-3 / 0.1;
}

TEST(SectionGeometry, OfARectangleIsItsEquivalentCircle) {
    Settings settings = Water();
    settings.SectionType = Section::Rectangular;
    const SectionSize duct = SectionGeometry(settings, 0.2, 0.1);
    EXPECT_NEAR(duct.hydraulicDiameter, 0.15234, 5e-6);
    EXPECT_NEAR(duct.area, 0.018226, 5e-7);
}

struct FrictionCase {
    const char* name;
    double reynolds, roughness, factor, tolerance;
};

/// Worked out apart, Colebrook's equation by bisection; on the threshold the explicit formula
/// would give 0.009507.
constexpr FrictionCase kFriction[] = {
    {"sluggish", 5, 0, 0.7642110, 1e-7},
    {"smooth, explicit", 2000, 0, 0.01307941, 1e-8},
    {"rough, explicit", 2000, 1e-4, 0.01327522, 1e-8},
    {"just below the threshold", 4999.9, 0, 0.009506912, 1e-8},
    {"on the threshold", 5000, 0, 0.009361617, 5e-8},
    {"smooth", 1e5, 0, 0.004502132, 5e-8},
    {"rough", 1e5, 1e-4, 0.005544772, 5e-8},
    {"fully rough", 1e9, 1e-3, 0.009470276, 5e-8},
};

TEST(FrictionFactor, ExplicitBelowReynolds5000AndColebrookFromThere) {
    for (const FrictionCase& c : kFriction) {
        SCOPED_TRACE(c.name);
        Settings settings = Water();
        settings.Roughness = c.roughness;
        const double reynolds = c.reynolds * (1 + 1e-12);  // not below by rounding
        EXPECT_NEAR(FrictionFactor(settings, 0.1, 0, FlowAt(reynolds)), c.factor, c.tolerance);
    }
}

TEST(PipeDrop, OfALiquidInACircleAndInTheSquareThatIsItsEqual) {
    Settings settings = Water();
    for (const double side : {0.1, 0.1 * std::pow(2, 0.25) / 1.3}) {
        const auto drop = [&](double flow) {
            return PipeDrop(settings, side, side, flow, 100, kAtmosphere);
        };
        EXPECT_NEAR(drop(FlowAt(2000)), 10.620180, 1e-6);
        EXPECT_NEAR(drop(-FlowAt(1e5)), 11089.54, 0.1);
        EXPECT_EQ(drop(0), 0);
        settings.SectionType = Section::Rectangular;
    }
}

}  // namespace
}  // namespace idrova
