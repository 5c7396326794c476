// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/plant_drawing.h"

#include <gmock/gmock.h>

#include <algorithm>

#include "editor/grid_view.h"
#include "plant.h"
#include "recorded_surface.h"

namespace idrova {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Lines = std::vector<std::string>;

RecordedSurface Drawn(const Plant& plant) {
    RecordedSurface surface;
    DrawPlant(plant.project, plant.editor, surface);
    return surface;
}

// The centre of cell (1,1) is 639,639; cells are 278 apart.

TEST(PlantDrawing, ShowsEveryElementOnce) {
    Plant plant;
    plant.Do("L1,1 L5,1 L5,1 L5,3 pump L3,1 L9,9");
    EXPECT_THAT(Drawn(plant).drawn,
                ElementsAre("grid from 1,1", "pipe 1 639,639 1195,639", "pipe 2 1751,639 1751,1195",
                            "pipe 3 1195,639 1751,639", "point 639,639", "point 1751,639",
                            "point 1751,1195", "point 2863,2863", "IMG\\arrt.ico 1056,500"));
}

TEST(PlantDrawing, IconsFollowKindAndDirection) {
    CellRec cell;
    cell.Kind = CellKind::Pump;
    cell.Direction = 1;
    EXPECT_EQ(IconFile(cell), "");
    cell.Placed = true;
    const Lines expected = {"IMG\\arrt.ico", "IMG\\ardn.ico", "IMG\\arlt.ico", "IMG\\arup.ico", ""};
    for (int direction = 1; direction <= 5; ++direction) {
        cell.Direction = static_cast<float>(direction);
        EXPECT_EQ(IconFile(cell), expected[direction - 1]) << direction;
    }
    cell.Kind = CellKind::Loss;
    EXPECT_EQ(IconFile(cell), "IMG\\PERC.ico");
}

TEST(PlantDrawing, LabelsWhatIsSelected) {
    Plant plant;
    plant.Do("L5,5 L2,5 L7,7 L9,7 loss L8,7 R3,5");
    plant.project.PressureUnknown[2] = false;
    RecordedSurface surface = Drawn(plant);
    EXPECT_THAT(surface.All("selected pipe"), ElementsAre("1 1751,1751 917,1751"));
    EXPECT_THAT(surface.All("unknown"), ElementsAre("'1' 1751,1751 2051,1451"));
    EXPECT_THAT(surface.All("known"), ElementsAre("'2' 917,1751 617,1451"));

    plant.Do("R8,7");
    surface = Drawn(plant);
    EXPECT_THAT(surface.All("selected pipe"), IsEmpty());
    EXPECT_THAT(surface.All("known"), ElementsAre("'308 gate valve' 2585,2307 2285,2007"));
    plant.Do("R1,1");
    EXPECT_THAT(Drawn(plant).All("known"), IsEmpty());
}

TEST(DataLabels, ShowPressuresAndTheFlowFromHighToLow) {
    Plant plant;
    plant.Do("L1,1 L3,1 L3,1 L3,3");
    plant.project.Points[1].Pressure = 1.25F * kPascalPerBar;
    plant.project.Points[2].Pressure = 2.0F * kPascalPerBar;
    plant.project.Points[3].Pressure = 2.0F * kPascalPerBar;
    plant.project.PressureUnknown[1] = false;
    plant.editor.DataShown = true;
    const RecordedSurface surface = Drawn(plant);
    EXPECT_THAT(surface.All("known"), ElementsAre("'P1=1.25' 778,778"));
    EXPECT_THAT(surface.All("unknown"),
                ElementsAre("'P2=2.' 1334,778", "'P3=2.' 1334,361"));  // one below, one above
    EXPECT_THAT(surface.All("arrow"),
                ElementsAre("986,708 847,639", "986,570 847,639",        // to the left, at 639
                            "1126,847 1195,986", "1264,847 1195,986"));  // downwards, when equal
}

TEST(DataLabels, NeverHideEachOther) {
    Plant plant;
    plant.Do("L3,3 L3,9 L1,6 L3,6 L1,9 L5,9 pump L2,6");
    plant.editor.DataShown = true;
    std::vector<std::string> corners;
    for (const std::string& label : Drawn(plant).All("unknown")) {
        corners.push_back(label.substr(label.find(' ')));
    }
    std::ranges::sort(corners);
    EXPECT_EQ(corners.size(), 8U);
    EXPECT_EQ(std::ranges::adjacent_find(corners), corners.end());
}

TEST(DataLabels, GoWithClicksScrollingArmingAndDeletion) {
    for (const char* const script : {"L9,9", "R9,9", "pump", "delete"}) {
        Plant plant;
        plant.editor.DataShown = true;
        plant.Do(script);
        EXPECT_FALSE(plant.editor.DataShown) << script;
    }
    Plant plant;
    plant.editor.DataShown = true;
    ScrollDrawing(plant.project, plant.editor, 2, 1);
    EXPECT_FALSE(plant.editor.DataShown);
}

TEST(Scrolling, ShiftsWhatIsDrawnAndCutsItAtTheEdge) {
    Plant plant;
    plant.Do("L1,3 L9,3 L2,5 L2,9 pump L5,3");
    ScrollDrawing(plant.project, plant.editor, 3, 2);
    EXPECT_THAT(Drawn(plant).drawn,
                ElementsAre("grid from 3,2", "pipe 1 500,917 1195,917", "pipe 3 1195,917 2307,917",
                            "point 2307,917", "IMG\\arrt.ico 1056,778"));
    ScrollDrawing(plant.project, plant.editor, 1000, -4);
    EXPECT_EQ(plant.editor.ScrX, 250);
    EXPECT_EQ(plant.editor.ScrY, 1);
    EXPECT_THAT(Drawn(plant).drawn, ElementsAre("grid from 250,1"));
}

TEST(Scrolling, ClicksActOnTheCellThatTheHeadersName) {
    Plant plant;
    ScrollDrawing(plant.project, plant.editor, 11, 21);
    plant.Do("L2,1 L5,1");
    EXPECT_EQ(plant.Network(), "1:1(12,21)-2(15,21)");
    plant.Do("L41,1 R9,9 L50,40 R50,40");  // beyond the grid
    EXPECT_EQ(plant.editor.state, InsertState::FirstPoint);
    EXPECT_EQ(plant.project.numtubo, 1);
}

TEST(GridView, FindsThePlaceUnderAPosition) {
    const Plant plant;
    const int far = 500 + 50 * 278;
    const struct {
        int x, y, place;
    } cases[] = {{500, 500, 1},  {777, 777, 1},      {778, 500, 2}, {500, 778, 51},
                 {499, 600, 0},  {600, 499, 0},      {far, 600, 0}, {far - 1, far - 1, 2500},
                 {-90, -900, 0}, {far - 1, 500, 50}, {600, far, 0}};
    for (const auto& c : cases) EXPECT_EQ(PlaceUnder(plant.project, c.x, c.y), c.place);
}

}  // namespace
}  // namespace idrova
