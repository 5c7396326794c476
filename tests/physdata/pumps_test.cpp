// SPDX-License-Identifier: GPL-3.0-or-later
#include "physdata/pumps.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>

#include "base/number_text.h"
#include "physdata/pump_constants.h"

namespace idrova {
namespace {

TEST(PumpCurve, PassesThroughTheTwoPointsWithItsVertexInTheFirst) {
    const std::vector<std::array<double, 4>> cases = {{300000, 0, 100000, 1},
                                                      {300000, 0.5, 100000, 2},
                                                      {100000, 1, 300000, 0.25},
                                                      {4e5, 10, 4e5, 20}};
    for (const auto& [pMax, qMin, pMin, qMax] : cases) {
        const PumpCurve curve = CurveThrough(pMax, qMin, pMin, qMax).value();
        const double tolerance = 1e-9 * std::abs(curve.c);
        EXPECT_NEAR(curve.Rise(qMin), pMax, tolerance);
        EXPECT_NEAR(curve.Rise(qMax), pMin, tolerance);
        EXPECT_NEAR(curve.Rise(qMin + 0.1), curve.Rise(qMin - 0.1), tolerance);
    }
    EXPECT_EQ(CurveThrough(5, 0.1, 3, 0.1), std::nullopt);
}

TEST(PumpCurve, ATypedPumpHasTheCatalogueCurve) {
    const PumpRecord pump = TypedPump({"P 30", "30", "0", "10", "3600"});
    EXPECT_EQ(ShowPump(pump), (PumpFields{"P 30", "30.", ".", "10.", "3600."}));
    EXPECT_EQ(GeneralText(pump.pMax), "309862.4");
    EXPECT_EQ(pump.qMin, 0);
    EXPECT_EQ(GeneralText(pump.pMin), "103287.5");
    EXPECT_EQ(pump.qMax, 1);
    const PumpCurve curve = CurveOf(pump).value();
    EXPECT_EQ(LabelsOf(curve), (CurveLabels{"-206574.92", "0", "309862.38"}));
    EXPECT_EQ(PrevalenceText(curve, "1800"), "25.");
    EXPECT_EQ(PrevalenceText(curve, ""), "30.");
    EXPECT_EQ(PrevalenceText(curve, "7200"), "-50.");
}

TEST(PumpChart, StepsFromTheLeastFlowToBelowTheLargest) {
    const PumpChart chart =
        ChartOf({.name = "", .pMax = 309862.4F, .qMin = 0.5F, .pMin = 103287.5F, .qMax = 1.5F})
            .value();
    EXPECT_EQ(chart.front().label, "1800.");
    EXPECT_EQ(chart[1].label, "1980.");
    EXPECT_EQ(chart.back().label, "5220.");
    EXPECT_NEAR(chart.front().prevalence, 30, 1e-5);
    EXPECT_NEAR(chart.back().prevalence, 30 - 20 * 0.95 * 0.95, 1e-5);
    EXPECT_FALSE(ChartOf({.name = "", .pMax = 2, .qMin = 0.3F, .pMin = 1, .qMax = 0.3F}));
}

/// A single after its way through a project file.
float FromFile(double value) {
    return ToSingle(ReadNumber(GeneralText(ToSingle(value))));
}

TEST(PumpConstants, ComeFromThePumpWithTheSameNameAndCoefficients) {
    const PumpRecord pump{.name = "P", .pMax = 9.8765431e5F, .qMin = 0.7F, .pMin = 1e5F, .qMax = 3};
    const PumpDb db = WithRecord(WithRecord(PumpDb{}, {.name = "P"}), pump);
    const PumpCurve curve = CurveOf(pump).value();
    EXPECT_NE(FromFile(curve.b), ToSingle(curve.b)) << "a value that 7 digits do not hold";
    const auto project = std::make_unique<Project>();
    CellRec& cell = project->Cells[kMaxCells];
    const auto completed = [&](const std::function<void()>& change) {
        cell = CellRec{};
        cell.Name = "P";
        cell.Kind = CellKind::Pump;
        cell.Placed = true;
        cell.Param1 = FromFile(curve.a);
        cell.Param2 = FromFile(curve.b);
        change();
        CompletePumpConstants(*project, db);
        return cell.PumpConstant;
    };
    EXPECT_EQ(completed([] {}), ToSingle(curve.c));
    EXPECT_EQ(completed([&] { cell.PumpConstant = 5; }), 5) << "a stored constant stays";
    EXPECT_EQ(completed([&] { cell.Name = "Q"; }), 0);
    EXPECT_EQ(completed([&] { cell.Param1 *= 1.00001F; }), 0);
    EXPECT_EQ(completed([&] { cell.Param2 = 0; }), 0);
    EXPECT_EQ(completed([&] { cell.Placed = false; }), 0) << "deleted";
    EXPECT_EQ(completed([&] { cell.Kind = CellKind::Loss; }), 0);
}

}  // namespace
}  // namespace idrova
