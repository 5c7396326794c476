// SPDX-License-Identifier: GPL-3.0-or-later
#include "hydraulics/verification_cases.h"

#include <initializer_list>
#include <limits>

#include "hydraulics/pipe_drop.h"
#include "support/network_run.h"

namespace idrova {
namespace {

constexpr double kNone = std::numeric_limits<double>::quiet_NaN();
constexpr CellKind kPump = CellKind::Pump;
constexpr CellKind kLoss = CellKind::Loss;

/// Of water in a pipe of 0.1 m with pi as 3.1415.
double Fanning(double reynolds, double relativeRoughness) {
    const NetworkBuilder water;
    Settings settings = water->settings;
    settings.Roughness = 0.1 * relativeRoughness;
    const double flow = reynolds * (1 + 1e-12) * 3.1415 * 0.1 / 4 * 1e-3;  // not below by rounding
    return FrictionFactor(settings, 0.1, 0, flow);
}

/// Pipes one after the other, level, between two pressures.
NetworkBuilder Line(std::initializer_list<PipeSize> pipes, float from, float to = 0) {
    const int count = static_cast<int>(pipes.size());
    NetworkBuilder network(count + 1);
    int point = 1;
    for (const PipeSize& pipe : pipes) {
        network->Pipes[network.AddPipe(point, point + 1, pipe.length, pipe.diameter)].LossSum =
            pipe.lossSum;
        ++point;
    }
    network.SetPressure(1, from);
    network.SetPressure(count + 1, to);
    return network;
}

NetworkBuilder Reversed(NetworkBuilder network) {
    for (int i = 1; i <= network->numtubo; ++i) {
        network->Pipes[i].FlowFromPoint = network->Pipes[i].EndPoint;
    }
    return network;
}

/// Two pipes of 30 m side by side, 5 kg/s through both.
NetworkBuilder Parallel() {
    NetworkBuilder network(4);
    network.AddPipe(2, 3, 30, 0.06F);
    network.AddPipe(2, 3, 30, 0.04F);
    network.AddPipe(1, 2, 10);
    network.SetFlow(network.AddPipe(3, 4, 10), 5);
    network.SetPressure(1, 5e5F);
    return network;
}

/// Four junctions: fed at the first, 2 kg/s taken at the second, 4 at the third.
NetworkBuilder Loop() {
    NetworkBuilder network(7);
    network.AddPipe(1, 2, 100, 0.06F);
    network.AddPipe(2, 3, 150, 0.05F);
    network.AddPipe(4, 3, 80, 0.07F);
    network.AddPipe(1, 4, 120, 0.06F);
    network.AddPipe(5, 1, 10);
    network.SetFlow(network.AddPipe(2, 7, 10, 0.05F), 2);
    network.SetFlow(network.AddPipe(3, 6, 10, 0.05F), 4);
    network.SetPressure(5, 5e5F);
    return network;
}

NetworkBuilder With(double density, double viscosity, double roughness, NetworkBuilder network) {
    network->settings.FluidDensity = density;
    network->settings.FluidViscosity = viscosity;
    network->settings.Roughness = roughness;
    return network;
}

NetworkBuilder Oil(NetworkBuilder network) {
    return With(1000, 0.2, 1e-4, std::move(network));
}

NetworkBuilder Air(NetworkBuilder network) {
    MakeAir(*network);
    return network;
}

NetworkBuilder Duct(NetworkBuilder network) {
    network->settings.SectionType = Section::Rectangular;
    network->Pipes[1].OuterSize = 0.1F;
    return network;
}

NetworkBuilder Given(NetworkBuilder network, float flow) {
    network.SetFlow(1, flow);
    network->PressureUnknown[network->npres] = true;
    return network;
}

/// With the end of the first pipe at a height.
NetworkBuilder Up(NetworkBuilder network, std::int16_t height) {
    network->Pipes[1].Z2 = height;
    return network;
}

double Flow(const NetworkBuilder& network, int pipe = 1) {
    const NetworkRun run(network);
    return run.outcome.end == RunEnd::Settled ? run.Flow(pipe) : kNone;
}

double Pressure(const NetworkBuilder& network, int point) {
    const NetworkRun run(network);
    return run.outcome.end == RunEnd::Settled ? run.Pressure(point) : kNone;
}

constexpr const char* kFriction = "Friction factors";
constexpr const char* kPipes = "Single pipes";
constexpr const char* kNetworks = "Series, parallel and loops";
constexpr const char* kPumps = "Pumps";
constexpr const char* kLosses = "Valves and fittings";
constexpr const char* kGas = "Gases and ducts";

constexpr const char* kPrandtl = "Prandtl 1935, smooth walls, 1/√λ = 2 log10(Re·√λ) − 0.8";
constexpr const char* kTextbook =
    "textbook example, after White, Fluid Mechanics (edition and page not recorded)";
constexpr const char* kKarman = "von Kármán 1930, 1/√λ = 1.14 − 2 log10(ε/D)";

std::vector<VerificationCase> FrictionCases() {
    return {
        {kFriction, "λ = 4f, smooth, Re 10^4", kPrandtl, "", 0.030889, 4 * Fanning(1e4, 0), 2e-3},
        {kFriction, "λ = 4f, smooth, Re 10^5", kPrandtl, "", 0.017993, 4 * Fanning(1e5, 0), 2e-3},
        {kFriction, "λ = 4f, smooth, Re 10^6", kPrandtl, "", 0.011647, 4 * Fanning(1e6, 0), 2e-3},
        {kFriction, "λ = 4f, smooth, Re 10^7", kPrandtl, "", 0.0081036, 4 * Fanning(1e7, 0), 2e-3},
        {kFriction, "λ = 4f, ε/D 0.01, Re 10^9", kKarman, "", 0.03785, 4 * Fanning(1e9, 1e-2),
         2e-3},
        {kFriction, "λ = 4f, ε/D 0.001, Re 10^9", kKarman, "", 0.01962, 4 * Fanning(1e9, 1e-3),
         2e-3},
        {kFriction, "λ = 4f, ε/D 0.0001, Re 10^9", kKarman, "", 0.01197, 4 * Fanning(1e9, 1e-4),
         2e-3},
        {kFriction, "f, smooth, Re 5, the formula as it stands", "`(3.8 * log10(10 / 5)) ** -2`",
         "", 0.76421096, Fanning(5, 0)},
        {kFriction, "f, smooth, Re 2000", "`fanning(2000, 0)`", "", 0.0130794128, Fanning(2000, 0)},
        {kFriction, "f, ε/D 0.001, Re 2000", "`fanning(2000, .001)`", "", 0.0132752247,
         Fanning(2000, 1e-3)},
        {kFriction, "f, smooth, Re 4999.9", "`fanning(4999.9, 0)`", "", 0.00950691227,
         Fanning(4999.9, 0)},
        {kFriction, "f, smooth, Re 5000", "`fanning(5000, 0)`", "", 0.00936161678, Fanning(5000, 0),
         1e-5},
        {kFriction, "f, ε/D 0.001, Re 10^5", "`fanning(1e5, .001)`", "", 0.0055447723,
         Fanning(1e5, 1e-3), 1e-5},
    };
}

std::vector<VerificationCase> PipeCases() {
    return {
        {kPipes,
         "oil of 900 kg/m³ and 10⁻⁵ m²/s, 0.2 m³/s through 500 m of 200 mm, ε 0.26 mm: head loss",
         kTextbook, "m", 117,
         -Pressure(With(900, 9e-3, 2.6e-4, Given(Line({{500, 0.2F}}, 0), 180)), 2) / 900 / 9.81,
         0.015},
        {kPipes,
         "oil of 950 kg/m³ and 2·10⁻⁵ m²/s, 100 m of 300 mm, ε/D 0.0002, head loss 8 m: flow",
         kTextbook, "m³/s", 0.342,
         Flow(With(950, 0.019, 6e-5, Line({{100, 0.3F}}, 8 * 950 * 9.81F))) / 950, 0.005},
        {kPipes, "7.85375 kg/s of water through 100 m of 100 mm: drop", "`drop(7.85375, 100, .1)`",
         "Pa", 11089.5446, -Pressure(Given(Line({{100, 0.1F}}, 0), 7.85375F), 2), 1e-5},
        {kPipes, "water, 100 m of 100 mm, 10⁵ Pa", "`flow(lambda w: 1e5 - drop(w, 100, .1))`",
         "kg/s", 24.4914187, Flow(Line({{100, 0.1F}}, 1e5F))},
        {kPipes, "10 m down through 200 m of 50 mm", "`flow(lambda w: 98100 - drop(w, 200, .05))`",
         "kg/s", 2.70908626, Flow(Up(Line({{200, 0.05F}}, 0), -10))},
        {kPipes, "1 Pa along 200 m of 100 mm", "`flow(lambda w: 1 - drop(w, 200, .1))`", "kg/s",
         0.0213757424, Flow(Line({{200, 0.1F}}, 1))},
        {kPipes, "the drop half way between those at Re 4950 and 5050, 100 m of 50 mm",
         "`5000 * area(.05) * .001 / .05`", "kg/s", 0.19634375,
         Flow(Line({{100, 0.05F}}, 399.877568F))},
        {kPipes, "1 Pa·s, 100 m of 50 mm, 10⁵ Pa: below Re 50",
         "`flow(lambda w: 1e5 - drop(w, 100, .05, mu=1))`", "kg/s", 0.345431867,
         Flow(With(1000, 1, 1e-4, Line({{100, 0.05F}}, 1e5F)))},
    };
}

std::vector<VerificationCase> NetworkCases() {
    return {
        {kNetworks, "water, 100 m of 100 mm and 50 m of 80 mm, 10⁵ Pa",
         "`flow(lambda w: 1e5 - drop(w, 100, .1) - drop(w, 50, .08))`", "kg/s", 15.072291,
         Flow(Line({{100, 0.1F}, {50, 0.08F}}, 1e5F))},
        {kNetworks, "the same with oil of 0.2 Pa·s",
         "`flow(lambda w: 1e5 - drop(w, 100, .1, mu=.2) - drop(w, 50, .08, mu=.2))`", "kg/s",
         7.18791642, Flow(Oil(Line({{100, 0.1F}, {50, 0.08F}}, 1e5F)))},
        {kNetworks, "5 kg/s of water through 60 mm and 40 mm side by side: in the wide one",
         "`flow(lambda w: drop(w, 30, .06) - drop(5 - w, 30, .04))`", "kg/s", 3.73277787,
         Flow(Parallel(), 1)},
        {kNetworks, "the same with oil of 0.2 Pa·s",
         "`flow(lambda w: drop(w, 30, .06, mu=.2) - drop(5 - w, 30, .04, mu=.2))`", "kg/s",
         3.91288433, Flow(Oil(Parallel()), 1)},
        {kNetworks, "water in a loop of four: in pipe 1", "`flow(loop)`", "kg/s", 3.03661234,
         Flow(Loop(), 1)},
        {kNetworks, "the same with oil of 0.2 Pa·s", "`flow(lambda w: loop(w, .2))`", "kg/s",
         2.92527993, Flow(Oil(Loop()), 1)},
        {kNetworks, "water in the loop: pressure at its far consumer",
         "`5e5 - drop(6, 10, .1) - (lambda w: drop(w, 100, .06) + drop(w - 2, 150, "
         ".05))(flow(loop)) - "
         "drop(4, 10, .05)`",
         "Pa", 452856.866, Pressure(Loop(), 6), 2e-6},
    };
}

std::vector<VerificationCase> PumpCases() {
    return {
        {kPumps, "−20 w² + 10⁵ Pa, without its constant",
         "`flow(lambda w: 1e5 - 20 * w * w - drop(w, 300, .1) - drop(w, 150, .08))`", "kg/s",
         8.4838888, Flow(CutPipe({300, 0.1F}, kPump, {-20, 1e5F, 0}, {150, 0.08F}, 0))},
        {kPumps, "−20 w² − 50 w + 10⁵ Pa",
         "`flow(lambda w: 1e5 - 50 * w - 20 * w * w - drop(w, 300, .1) - drop(w, 150, .08))`",
         "kg/s", 8.46520861, Flow(CutPipe({300, 0.1F}, kPump, {-20, -50, 1e5F}, {150, 0.08F}, 0))},
        {kPumps, "−5000 w² + 3·10⁵ Pa, steeper than its pipes",
         "`flow(lambda w: 3e5 - 5000 * w * w - drop(w, 10, .1) - drop(w, 5, .08))`", "kg/s",
         7.71058533, Flow(CutPipe({10, 0.1F}, kPump, {-5000, 3e5F, 0}, {5, 0.08F}, 0))},
        {kPumps, "−200 w² + 5·10⁴ Pa pushed back by 10⁵ Pa",
         "`-flow(lambda w: 5e4 - 2 * drop(w, 10, .0538))`", "kg/s", -7.61114887,
         Flow(CutPipe({10, 0.0538F}, kPump, {-200, 5e4F, 0}, {10, 0.0538F}, 1e5F, 2e5F))},
    };
}

std::vector<VerificationCase> LossCases() {
    return {
        {kLosses, "K = 0.5 between two pipes of 10 m of 53.8 mm, 10⁵ Pa",
         "`flow(lambda w: 1e5 - drop(w, 10, .0538, .5) - drop(w, 10, .0538))`", "kg/s", 10.5310835,
         Flow(CutPipe({10, 0.0538F}, kLoss, {0.5F}, {10, 0.0538F}, 1e5F))},
        {kLosses, "K = 3", "`flow(lambda w: 1e5 - drop(w, 10, .0538, 3) - drop(w, 10, .0538))`",
         "kg/s", 9.33769703, Flow(CutPipe({10, 0.0538F}, kLoss, {3}, {10, 0.0538F}, 1e5F))},
        {kLosses, "K = 3, its pipes counted the other way",
         "`-flow(lambda w: 1e5 - drop(w, 10, .0538, 3) - drop(w, 10, .0538))`", "kg/s", -9.33769703,
         Flow(Reversed(CutPipe({10, 0.0538F}, kLoss, {3}, {10, 0.0538F}, 1e5F)))},
        {kLosses, "K = 10, crossed backwards",
         "`-flow(lambda w: 1e5 - drop(w, 10, .0538, 10) - drop(w, 10, .0538))`", "kg/s",
         -7.38869868, Flow(CutPipe({10, 0.0538F}, kLoss, {10}, {10, 0.0538F}, 0, 1e5F))},
        {kLosses, "K = 20 on 3 m of pipe",
         "`flow(lambda w: 1e5 - drop(w, 2, .1, 20) - drop(w, 1, .08))`", "kg/s", 24.199998,
         Flow(CutPipe({2, 0.1F}, kLoss, {20}, {1, 0.08F}, 1e5F))},
        {kLosses, "a fixed drop of 20000 Pa, before a coefficient",
         "`flow(lambda w: 8e4 - drop(w, 100, .1) - drop(w, 50, .08))`", "kg/s", 13.4402597,
         Flow(CutPipe({100, 0.1F}, kLoss, {5, 2e4F}, {50, 0.08F}, 1e5F))},
        {kLosses, "fittings of a pipe, ΣK = 3, 100 m of 100 mm, 10⁵ Pa",
         "`flow(lambda w: 1e5 - drop(w, 100, .1, 3))`", "kg/s", 22.8494507,
         Flow(Line({{100, 0.1F, 3}}, 1e5F))},
        {kLosses, "fittings of a pipe, ΣK = 3, 8 kg/s: drop", "`drop(8, 100, .1, 3)`", "Pa",
         13042.7399, -Pressure(Given(Line({{100, 0.1F, 3}}, 0), 8), 2), 1e-5},
    };
}

std::vector<VerificationCase> GasCases() {
    return {
        {kGas, "air of 20 °C, 500 m of 50 mm, 6 to 1 bar (10⁵ Pa)",
         "`flow(lambda w: 701325 ** 2 - 201325 ** 2 - 2 * G * 1.2929 * drop(w, 500, .05, **air))`",
         "kg/s", 0.297512599, Flow(Air(Line({{500, 0.05F}}, 6e5F, 1e5F)))},
        {kGas, "air through K = 2000 at 7 bar, 10⁴ Pa",
         "`area(.0538) * sqrt(2 * 711325 / G * 1e4 / 2000)`", "kg/s", 0.0211174968,
         Flow(Air(CutPipe({0.001F, 0.0538F}, kLoss, {2000}, {0.001F, 0.0538F}, 6.1e5F, 6e5F))),
         1e-4},
        {kGas, "air at rest, 500 m up", "`101325 * (exp(-9.81 * 500 / G) - 1)`", "Pa", -5853.71185,
         Pressure(Air(Up(Given(Line({{500, 0.1F}}, 0), 0), 500)), 2), 4e-4},
        {kGas, "water in a duct of 200 mm x 100 mm, 100 m, 10⁴ Pa",
         "`flow(lambda w: 1e4 - drop(w, 100, 1.3 * (.2 * .1) ** .625 / .3 ** .25))`", "kg/s",
         22.6859554, Flow(Duct(Line({{100, 0.2F}}, 1e4F)))},
    };
}

}  // namespace

std::vector<VerificationCase> VerificationCases() {
    std::vector<VerificationCase> all;
    for (const auto& group :
         {FrictionCases(), PipeCases(), NetworkCases(), PumpCases(), LossCases(), GasCases()}) {
        all.insert(all.end(), group.begin(), group.end());
    }
    return all;
}

}  // namespace idrova
