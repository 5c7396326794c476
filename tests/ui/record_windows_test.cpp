// SPDX-License-Identifier: GPL-3.0-or-later
#include <vector>

#include "drawing_window.h"
#include "hydraulics/messages.h"
#include "physdata/messages.h"
#include "physdata/record_db.h"

namespace idrova {
namespace {

class RecordWindow : public DrawingWindow {
  protected:
    template <typename Record>
    void PutRecords(const std::vector<Record>& records) {
        RecordDb<Record> db;
        for (const Record& record : records) db = WithRecord(db, record);
        PutFile(folder / Record::kFile, EncodeRecords(db));
        RereadComponents(*program);
        program->changed();
    }
    template <typename Record>
    Record LastStored() {
        const RecordDb<Record> db = *ReadRecords<Record>(folder.Path());
        return db[db.count];
    }
};

TEST_F(RecordWindow, FluidsAreShownSavedAddedDeletedAndUsed) {
    PutRecords<FluidRecord>({{"Water", 998.2F, .001002F, 0, 4186, .6F, 0},
                             {"Brine", 1100, .001002F, 0, 3800, .5F, -1},
                             {"Nothing", 0, 1, 0, 0, 0, 0}});
    project.settings.FluidDensity = 850;
    Walk(R"(
        Fluido>FrmFlu # Text1 Label8 # 850| # the fluid in use
        Combo1#0 # Text1 Text6 Text5 Text3 Text4 Label8 Label9 # 998.2|1.002E-3|0|4186|.6|1|1.00E-6)");
    QTest::mouseClick(&Child<QLineEdit>("Text1"), Qt::LeftButton);
    EXPECT_EQ(Shown("Label9"), "1.004E-6");
    Walk(R"(
        Combo1!Down # Combo1 Label9 # Brine|9.11E-7 # the same viscosity, another density
        Text6=.0022 # Label9 # 2.00E-6
        Combo1#2 # Label9 # 2.00E-6)");

    boxes.Expect(kAskSaveFluid, Answer::Yes)
        .Expect(kAskSaveFluidAs, Answer::Yes)
        .Expect(kAskDeleteFluid, Answer::Cancel)
        .Expect(kAskDeleteFluid, Answer::Ok);
    Walk("Combo1#1;Combo1=Glycol;Text1=1050;Command2 # Combo1* # Water Glycol Nothing");
    Do("Combo1:Olio più;Text5=.9;Check1;Command4");
    EXPECT_EQ(LastStored<FluidRecord>(),
              (FluidRecord{"Olio più", 1050, .001002F, .9F, 3800, .5F, 0}));
    Walk(R"(Combo1#0;Command3 # Combo1 Label8 # Water|1
            Command3 # Combo1 Label8 Combo1* # ||Glycol Nothing Olio più
            Combo1#0;Text1=1101 kg;Text1! # FrmFlu StatusFluid # |Fluid: [1] Glycol)");
    EXPECT_EQ(project.settings.FluidDensity, 1101);
}

TEST_F(RecordWindow, PumpsAreDrawnSavedOfferedAndShownAtWork) {
    PutRecords<PumpRecord>(
        {TypedPump({"First", "30", "0", "10", "3600"}), {"Level", 200000, 1, 100000, 1}});
    Do("L2,5;L8,5;Combo3#0;Command3;L5,5");
    project.settings.FluidDensity = 1000;
    project.settings.FluidViscosity = .001;
    for (int i : {1, 2}) {
        project.Pipes[i].Length = project.Pipes[i].Diameter = 1;
        project.PressureUnknown[i] = false;
    }
    project.Points[2].Pressure = static_cast<float>(PascalFromMetres(25));
    boxes.Expect(NegativePressures(0), Answer::No);
    Do("Command1;Pompe>FrmPompa");
    auto& chart = Child<QWidget>("MSChart1");
    const QImage before = chart.grab().toImage();
    Walk(R"(Combo1#0;Text6=1800 # Text1 Text2 Text3 Text4 Text5 # 30.|.|10.|3600.|25.
            Combo1#1 # Text1 Text2 Text3 Text4 Text5 # 19.363|3600.|9.682|3600.|25.
            )");  // no curve: the one before stays
    EXPECT_EQ(Shown("Label6").left(10) + Shown("Label11").left(9), "-206574.92309862.38");
    const QString curve = "From 30. m at . kg/h to 11.95 m at 3420. kg/h";
    EXPECT_EQ(chart.accessibleDescription(), curve + ", working at 25. m");
    project.Pipes[1].Length = 2;
    program->changed();
    EXPECT_EQ(chart.accessibleDescription(), curve) << "that is no longer known";
    EXPECT_NE(chart.grab().toImage(), before);

    boxes.Expect(kAskSavePump, Answer::No).Expect(kAskSavePump, Answer::Yes);
    Walk(R"(
        Text6=3600;Text1=40;Text2=;Text3=20;Text4=7200;Combo1=New;Text6!;Command2
        # Combo1* # First Level # Return in the flow to evaluate saves nothing
        Text4! # Combo1 Text5 Combo3* # New|35.|First Level New)");
    EXPECT_EQ(LastStored<PumpRecord>(), TypedPump({"New", "40", "", "20", "7200"}));
}

TEST_F(RecordWindow, LossesAreShownSavedAndDeleted) {
    PutRecords<LossRecord>(
        {{"Valve", .2F, 0}, {"Filter", 0, 101325}, {"Both", 3, 5000}, {"None", 0, 0}});
    boxes.Expect(kZeroCoefficient)
        .Expect(kNoLossToDelete)
        .Expect(kAskSaveLoss, Answer::No)
        .Expect(kAskSaveLoss, Answer::Yes)
        .Expect(kAskDeleteLoss, Answer::Cancel)
        .Expect(kAskDeleteLoss, Answer::Ok);
    Walk(R"(
        PerditeCon>FrmPerCon
        Combo1#0 # Option1_1 Text1 Text2 Label2 # 0|.2||
        Combo1#1 # Option1_1 Text1 Text2 Label2 # 1||101325|1000.
        Combo1#3 # Option1_1 Text1 Text2 Label2 # 1||101325|1000.
        Text1=7 # Option1_1 Text1 Text2 Label2 # 0|7||.
        Text2=202650 # Option1_1 Text1 Text2 Label2 # 1||202650|2000.
        Option1_0 # Option1_1 Text1 Text2 Label2 # 0|||.
        Combo1=Elbow;Text2=none;Command2;Command3 # Combo1 Text1 Text2 # Elbow||none # refused, kept
        Combo1=Elbow;Text1=1.5;Command2 # Combo1 Text1 Text2 # ||
        Combo1=Elbow;Text1=1.5;Command2 # Combo1 Text1 Text2 # || # either answer starts anew
        Combo1#1;Command3 # Combo1 Text1 Text2 # Filter||101325
        Command3 # Combo1 Text1 Text2 Combo1* # |||Valve Both None Elbow)");
    EXPECT_EQ(LastStored<LossRecord>(), (LossRecord{"Elbow", 1.5F, 0}));
}

}  // namespace
}  // namespace idrova
