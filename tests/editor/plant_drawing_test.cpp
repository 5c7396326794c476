// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/plant_drawing.h"

#include <gmock/gmock.h>

#include <set>

#include "plant.h"
#include "recorded_surface.h"

namespace idrova {
namespace {

using Lines = std::vector<std::string>;

Lines Drawn(const char* script) {
    Plant plant;
    plant.Do(script);
    RecordedSurface surface;
    DrawPlant(plant.project, plant.editor, surface);
    return surface.drawn;
}

struct Drawing {
    const char* what;
    const char* script;
    Lines drawn;  ///< the centre of cell (1,1) is 639,639; cells are 278 apart
};

const Drawing kDrawings[] = {
    {"every element",
     "L1,1 L5,1 L5,1 L5,3 pump L3,1 L9,9",
     {"grid from 1,1", "pipe 1 639,639 1195,639", "pipe 2 1751,639 1751,1195",
      "pipe 3 1195,639 1751,639", "point 639,639", "point 1751,639", "point 1751,1195",
      "point 2863,2863", "IMG\\arrt.ico 1056,500"}},
    {"selected pipe",
     "L5,5 L2,5 R3,5 again end2=given",
     {"grid from 1,1", "selected pipe 1 1751,1751 917,1751", "point 1751,1751", "point 917,1751",
      "unknown '1' 1751,1751 2051,1451", "known '2' 917,1751 617,1451"}},
    {"pumps that deliver up and left",
     "L1,1 L3,1 L1,3 L1,5 pump L2,1 pump L1,4 R2,1 turn R1,4 turn R9,9",
     {"grid from 1,1", "pipe 1 639,639 917,639", "pipe 2 639,1195 639,1473",
      "pipe 3 917,639 1195,639", "pipe 4 639,1473 639,1751", "point 639,639", "point 1195,639",
      "point 639,1195", "point 639,1751", "IMG\\arlt.ico 778,500", "IMG\\arup.ico 500,1334"}},
    {"selected component",
     "L7,7 L9,7 loss L8,7 R8,7",
     {"grid from 1,1", "pipe 1 2307,2307 2585,2307", "pipe 2 2585,2307 2863,2307",
      "point 2307,2307", "point 2863,2307", "IMG\\PERC.ico 2446,2168",
      "known '308 gate valve' 2585,2307 2285,2007"}},
    {"data: arrows run from high to low or, when equal, as drawn",
     "L1,1 L3,1 L3,1 L3,3 R2,1 again end1=given p1=1.25 end2=given p2=2 end2=unknown R3,2 again "
     "end2=given p2=2 end2=unknown R9,9 labels",
     {"grid from 1,1", "pipe 1 639,639 1195,639", "pipe 2 1195,639 1195,1195", "point 639,639",
      "point 1195,639", "point 1195,1195", "known 'P1=1.25' 778,778", "leader 1195,639 1334,1056",
      "unknown 'P2=2.' 1334,1056", "leader 1195,1195 1334,546", "unknown 'P3=2.' 1334,361",
      "arrow 986,708 847,639", "arrow 986,570 847,639", "arrow 1126,847 1195,986",
      "arrow 1264,847 1195,986"}},
    {"labels at the right edge",
     "L48,3 L50,3 labels",
     {"grid from 1,1", "pipe 1 13705,1195 14261,1195", "point 13705,1195", "point 14261,1195",
      "unknown 'P1=.' 13844,1334", "leader 14261,1195 14261,546", "unknown 'P2=.' 14234,361",
      "arrow 13913,1126 14052,1195", "arrow 13913,1264 14052,1195"}},
    {"cut by scrolling, which hides data",
     "L1,3 L9,3 L2,5 L2,9 pump L5,3 labels S3,2",
     {"grid from 3,2", "pipe 1 500,917 1195,917", "pipe 3 1195,917 2307,917", "point 2307,917",
      "IMG\\arrt.ico 1056,778"}},
    {"scrolled to the limit", "L1,3 L9,3 S1000,-4", {"grid from 250,1"}},
};

TEST(PlantDrawing, ShowsWhatTheScriptLeaves) {
    for (const Drawing& c : kDrawings) EXPECT_EQ(Drawn(c.script), c.drawn) << c.what;
}

TEST(DataLabels, NeverHideEachOther) {
    std::set<std::string> corners;
    for (const std::string& line : Drawn("L3,3 L3,9 L1,6 L3,6 L1,9 L5,9 pump L3,7 labels")) {
        if (line.starts_with("unknown")) corners.insert(line.substr(line.rfind(' ')));
    }
    EXPECT_EQ(corners.size(), 8U);
}

}  // namespace
}  // namespace idrova
