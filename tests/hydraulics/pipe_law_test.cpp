// SPDX-License-Identifier: GPL-3.0-or-later
#include "hydraulics/pipe_law.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>

#include "hydraulics/fluid_density.h"
#include "hydraulics/friction_law.h"

namespace idrova {
namespace {

constexpr double kArea = 3.1415 * 0.1 * 0.1 / 4;

/// Water in a pipe of 0.1 m.
Settings Water(double roughness = 1e-4) {
    Settings settings;
    settings.FluidDensity = 1000;
    settings.FluidViscosity = 1e-3;
    settings.Roughness = roughness;
    return settings;
}

Settings Air() {
    Settings settings = Water();
    settings.FluidDensity = 1.2929;
    settings.FluidViscosity = 1.8e-5;
    settings.FluidCompressibility = 0.98;
    settings.FluidTemperature = 20;
    settings.EquationType = Equation::Compressible;
    return settings;
}

LawAt FrictionAt(const Settings& settings, double reynolds) {
    const SectionSize section = SectionGeometry(settings, 0.1, 0);
    return FrictionLaw(settings, section, 100, FlowAtReynolds(settings, section, reynolds));
}

/// Drop times density of 100 m by Fanning's equation.
double Fanning(double factor, double reynolds) {
    const double massVelocity = reynolds * 1e-3 / 0.1;
    return 2 * factor * 100 / 0.1 * massVelocity * massVelocity;
}

double ExplicitFactor(double reynolds, double e) {
    return std::pow(3.8 * std::log10(10 / reynolds + 0.2 * e), -2);
}

/// Colebrook's equation by bisection of 1 / sqrt(f).
double ColebrookFactor(double reynolds, double e) {
    double low = 0.1;
    double high = 100;
    for (int i = 0; i < 200; ++i) {
        const double x = (low + high) / 2;
        (x + 4 * std::log10(2 * e + 9.35 * x / reynolds) < 3.48 ? low : high) = x;
    }
    return 1 / (low * low);
}

TEST(FrictionLaw, MeetsTheFormulasAndJoinsThem) {
    for (const double e : {0.0, 1e-3, 0.05}) {
        const Settings settings = Water(e * 0.1);
        const auto expect = [&](double reynolds, double term) {
            EXPECT_NEAR(FrictionAt(settings, reynolds).value, term, 1e-12 * term) << reynolds;
        };
        expect(5, Fanning(ExplicitFactor(50, e), 50) / 10);
        expect(2000, Fanning(ExplicitFactor(2000, e), 2000));
        expect(
            5000,
            (Fanning(ExplicitFactor(4950, e), 4950) + Fanning(ColebrookFactor(5050, e), 5050)) / 2);
        expect(1e5, Fanning(ColebrookFactor(1e5, e), 1e5));
        expect(1e9, Fanning(ColebrookFactor(1e9, e), 1e9));
    }
}

TEST(FrictionLaw, IsOddContinuousAndRisingOverTenDecades) {
    const double step = std::pow(10, 0.005);
    for (const double e : {0.0, 1e-6, 1e-4, 1e-3, 1e-2, 0.05}) {
        const Settings settings = Water(e * 0.1);

        for (double reynolds = 0.01; reynolds < 1e8; reynolds *= step) {
            SCOPED_TRACE(testing::Message() << "Re " << reynolds << ", roughness " << e);
            const LawAt law = FrictionAt(settings, reynolds);
            const LawAt back = FrictionAt(settings, -reynolds);
            EXPECT_EQ(back.value, -law.value);
            EXPECT_EQ(back.slope, law.slope);
            const LawAt next = FrictionAt(settings, reynolds * step);
            EXPECT_GT(next.value, law.value);
            EXPECT_LT(next.value, law.value * std::pow(step, 3));
            const double h = 1e-5;
            const double difference = FrictionAt(settings, reynolds * (1 + h)).value -
                                      FrictionAt(settings, reynolds * (1 - h)).value;
            const double flow = reynolds * 1e-3 * kArea / 0.1;
            EXPECT_NEAR(law.slope * 2 * h * flow, difference, 1e-6 * difference);
        }
        for (const double join : {50.0, 4950.0, 5050.0}) {
            const double below = FrictionAt(settings, join * (1 - 1e-9)).value;
            EXPECT_NEAR(FrictionAt(settings, join * (1 + 1e-9)).value, below, 1e-8 * below);
        }
        EXPECT_EQ(FrictionAt(settings, 0).value, 0);
        EXPECT_GT(FrictionAt(settings, 0).slope, 0);
    }
}

/// Flow, start and end pressure.
using Point = std::array<double, 3>;

template <typename Law>
void ExpectSlopes(const Law& law, const Point& at) {
    const PressureLaw value = law(at);
    const std::array<double, 3> slopes = {value.byFlow, value.byStart, value.byEnd};
    for (std::size_t i = 0; i < 3; ++i) {
        Point lower = at;
        Point upper = at;
        const double h = i == 0 ? 1e-4 * std::abs(at[0]) : 10;
        lower[i] -= h;
        upper[i] += h;
        const double difference = (law(upper).value - law(lower).value) / (2 * h);
        EXPECT_NEAR(slopes[i], difference, 1e-6 * std::abs(difference) + 1e-10) << i;
    }
}

TEST(PipeLaw, AddsLossesAndColumnsToTheDrop) {
    PipeRec pipe{
        .Length = 100, .Diameter = 0.1F, .StartPoint = 1, .EndPoint = 2, .Z1 = 5, .Z2 = 25};
    for (const bool gas : {false, true}) {
        const Settings settings = gas ? Air() : Water();
        // With the density at the mean of 5 and 3 bar above the atmosphere.
        const double density = gas ? 1.2929 * (501325.0 / 101325) * (273.15 / 293.15) / 0.98 : 1000;
        const double flow = gas ? 0.5 : 10;
        const double friction =
            FrictionAt(settings, flow / kArea * 0.1 / settings.FluidViscosity).value / density;
        const double loss = 7.0 / 2 * std::pow(flow / kArea, 2) / density;
        const double column = density * 9.81 * 20;
        for (const int from : {1, 2}) {
            pipe.FlowFromPoint = static_cast<std::int16_t>(from);
            for (const int sign : {1, -1}) {
                const auto law = [&](const Point& at) {
                    return PipeLaw(settings, pipe, 7, at[0], at[1], at[2]);
                };
                const Point at = {sign * flow, 5e5, 3e5};
                const double drop = sign * (from == 1 ? 1 : -1) * (friction + loss);
                EXPECT_NEAR(law(at).value, drop + column, 1e-6 * (friction + loss + column));
                ExpectSlopes(law, at);
            }
            pipe.FlowRate = static_cast<float>(-flow);  // counts without its sign
            const auto given = [&](const Point& at) {
                return GivenFlowLaw(settings, pipe, 7, at[1], at[2]);
            };
            const double drop = PipeDrop(settings, 0.1F, 0, flow, 100, 501325) + loss;
            EXPECT_NEAR(given({0, 5e5, 3e5}).value, (from == 1 ? drop : -drop) + column,
                        1e-6 * drop);
            ExpectSlopes(given, {flow, 5e5, 3e5});
        }
    }
}

TEST(MeanPressure, IsBoundedBelow) {
    Settings settings = Air();
    settings.BasePressure = 1000;
    const auto expect = [&](double start, double end, double value, double byStart, double byEnd) {
        const ByEndPressures mean = MeanPressureAt(settings, start, end);
        EXPECT_NEAR(mean.value, value, 1e-9);
        EXPECT_EQ(mean.byStart, byStart);
        EXPECT_EQ(mean.byEnd, byEnd);
    };
    expect(1e5, 2e5, 252325, 0.5, 0.5);
    expect(1e5, -5e5, 101162.5, 0.5, 0);  // half of the higher end's
    expect(-5e5, 1e5, 101162.5, 0, 0.5);
    expect(-5e5, -6e5, 1000, 0, 0);
}

}  // namespace
}  // namespace idrova
