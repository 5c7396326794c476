// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "results/editor_setting.h"
#include "results/messages.h"
#include "results/report.h"
#include "results/results_file.h"
#include "support/scripted_boxes.h"
#include "support/temp_folder.h"

namespace idrova {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;

TEST(Report, IsPrintedLineByLine) {
    Settings settings;
    settings.FluidName = "[3] Water 20 C";
    settings.FluidDensity = 998.2;
    settings.FluidViscosity = .001002;

    const auto work = std::make_unique<WorkNetwork>();
    work->WorkComponents = {
        {7, {.Name = "Gate valve", .Kind = CellKind::Loss, .Param1 = .2F}},
        {9, {.Name = "Removed", .Kind = CellKind::Pump}},
        {11, {.Name = "Filter", .Kind = CellKind::Loss, .Param1 = 1.5F, .Param2 = 5000}},
        {2500, {.Name = "Pump 30-160", .Kind = CellKind::Pump, .Result = .5F}}};
    for (WorkComponent& component : work->WorkComponents) {
        component.record.Placed = component.cell != 9;
    }
    work->WorkComponents.back().record.MinFlow = .25F;
    work->WorkComponents.back().record.MaxFlow = 2;
    constexpr std::int16_t gone = kDeleted;  // pipe 2 and point 3
    work->WorkPipeCount = 3;
    work->WorkPipes[1] = {.5F, 12.5F, .0279F, 1, 2, 639, 0, 0, 0, 0, 3, 0, 1};
    work->WorkPipes[2] = {1, 1, 1, gone, gone, gone, gone, gone, gone, 0, 0, 0, gone};
    work->WorkPipes[3] = {-.25F, 8, .028F, 4, 2, 639, 0, 0, 0, -2, 3, .0654F, 2};
    work->WorkPipes[3].LossSum = 1.67F;
    work->WorkPointCount = 4;
    work->WorkPoints = {{{}, {202650, 639}, {151987.5F, 639}, {1, gone}, {-1234.5F, 639}}};
    work->WorkPressureUnknown = {false, false, true, true, true};

    const std::vector<std::string> expected = {
        "",
        "****************************************************************",
        "RESULTS CALCULATION    (ver.              2.6.3)        2026-11-22    21:55:26",
        "Project:      /plants/Caffè.iv",
        "Mode: Graphic",
        "",
        "Fluid: [3] Water 20 C",
        "Density [kg/mc]:             998.2        viscosity:     .001002 ",
        "",
        "Roughness[m]:                .0001 ",
        "",
        "Correlation:  Incompressible fluid",
        "Section:      Circular",
        "",
        "Point 1       Pressure [Pa],[bar]          202650       2.            Known",
        "Point 2       Pressure [Pa],[bar]          151987.5     1.5           ",
        "Point 4       Pressure [Pa],[bar]         -1234.5       -.012         ",
        "",
        "pipe 1        P 1-P 2       [Pa]           50662.5      [Pa/m]         4053 ",
        "pipe 3        P 4-P 2       [Pa]          -153222       [Pa/m]        -19152.75 ",
        "",
        "pipe           1 ",
        "   Flow rate [kg/h],[mc/h]   1800          1.803246 ",
        "   Diameter [mm]             27.9         \0261",
        "   Lenght [m]  12.5 ",
        "   Height [m] Z1             0            Z2             3 ",
        "   Speed [m/s]              .819",
        "   Reynolds   22773.041",
        "pipe           3 ",
        "   Flow rate [kg/h],[mc/h]  -900          -.901623 ",
        "   Diameter [mm]             28           ",
        "   Lenght [m]  8 ",
        "   Sum of loss coefficients  1.67 ",
        "   Height [m] Z1            -2            Z2             3 ",
        "   Speed [m/s]              -.407",
        "   Reynolds   -11345.853",
        "",
        "PUMPS INSERTED",
        "Pump 30-160",
        "Min flow rate, max [kg/h]    900           7200 ",
        "Flow rate calculated [kg/h]  1800 ",
        "",
        "INSERTED CONCENTRATED PRESSURE DROPS",
        "Gate valve",
        "Coefficient    .2 ",
        "Filter",
        "Fixed drop [Pa]              5000 ",
        "Coefficient    1.5 ",
    };
    const ReportTime time{"2026-11-22", "21:55:26"};
    std::string text;
    for (const std::string& line : expected) text += line + "\r\n";
    EXPECT_EQ(ReportText(settings, "/plants/Caffè.iv", *work, time), text);
    settings.SectionType = Section::Rectangular;
    EXPECT_THAT(ReportText(settings, "/plants/Caffè.iv", *work, time),
                HasSubstr("   Side a [mm]               28           "
                          "   Side b [mm]               65.4 \r\n"));
}

class ResultsFile : public testing::Test {
  protected:
    void Show(const Status& started = Done{}) {
        ShowResults(folder.Path(), boxes, [&](const fs::path& program, const fs::path& file) {
            starts += program.string() + " " + file.string();
            return started;
        });
    }

    TempFolder folder;
    fs::path results = folder / "out.dat", config = folder / "IV.CFG";
    std::string editor = (folder / "my editor").string(), starts;
    Settings settings;
    ScriptedBoxes boxes;
};

TEST_F(ResultsFile, ReportReplacesOrFollowsTheOldOnesAndIsDeletedAndPrinted) {
    for (const bool inSequence : {false, false, true}) {
        settings.ResultsInSequence = inSequence;
        ASSERT_TRUE(StoreReport(settings, "one", folder.Path()));
    }
    boxes.Expect(kAskDeleteResults, Answer::Cancel).Expect(kAskDeleteResults, Answer::Ok);
    DeleteResults(folder.Path(), boxes);
    EXPECT_EQ(FileBytes(results), "oneone");
    DeleteResults(folder.Path(), boxes);
    EXPECT_FALSE(fs::exists(results));
    boxes.Expect(kAskDeleteResults, Answer::Ok);  // nothing left, which is not told
    DeleteResults(folder.Path(), boxes);
    ASSERT_TRUE(StoreReport(settings, "four", folder.Path()));
    EXPECT_EQ(FileBytes(results), "four");

    std::string printed;
    boxes.Expect(kAskPrint, Answer::No).Expect(kAskPrint, Answer::Yes);
    for (const char* text : {"declined", "report"}) {
        PrintReport(text, boxes, [&printed](const std::string& report) { printed += report; });
    }
    EXPECT_EQ(printed, "report");
}

TEST_F(ResultsFile, FailureIsTold) {
    fs::create_directory(results);
    fs::create_directory(config);
    PutFile(editor, "");
    RecordedBoxes told;
    for (const bool inSequence : {false, true}) {
        settings.ResultsInSequence = inSequence;
        const Status stored = StoreReport(settings, "report", folder.Path());
        ASSERT_FALSE(stored);
        EXPECT_THAT(stored.Error(), HasSubstr("out.dat"));
    }
    EXPECT_FALSE(SaveEditor(folder.Path(), editor, told));
    EXPECT_EQ(told.shown.back().title, "Text editor");
}

TEST_F(ResultsFile, ShowStartsTheEditorOrSaysWhatIsMissing) {
    boxes.Expect(kConfigureEditor).Expect(kNoResultsFile);
    Show();
    PutFile(results, "report");
    PutFile(config, editor + "\r\nsecond line\r\n");
    boxes.Expect(kConfigureEditor);
    Show();
    PutFile(editor, "");
    Show();
    EXPECT_EQ(starts, editor + " " + results.string()) << "once";
    boxes.Expect({"no display", "Files visualization"}).Expect(kNoResultsFile);
    Show(Failure{"no display"});
    fs::remove(results);
    Show();
}

TEST_F(ResultsFile, EditorSettingIsCheckedStoredAndShown) {
    EXPECT_EQ(EditorBoxText(folder.Path()), kChooseEditor);
    for (const std::string& wrong : {std::string(), folder.Path().string(), editor}) {
        boxes.Expect(kEditorNotFound);
        EXPECT_FALSE(SaveEditor(folder.Path(), wrong, boxes));
    }
    PutFile(editor, "");
    EXPECT_TRUE(SaveEditor(folder.Path(), editor, boxes));
    EXPECT_EQ(FileBytes(config), editor + "\r\n");
    EXPECT_EQ(EditorBoxText(folder.Path()), editor);
    fs::remove(editor);
    EXPECT_EQ(EditorBoxText(folder.Path()), "");
}

}  // namespace
}  // namespace idrova
