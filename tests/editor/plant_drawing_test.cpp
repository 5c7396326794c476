// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/plant_drawing.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <array>
#include <string_view>

#include "editor/drawing_list.h"
#include "editor/hover_text.h"
#include "editor/pipe_colours.h"
#include "editor/pipe_insertion.h"
#include "plant.h"

namespace idrova {
namespace {

using testing::Contains;
using testing::IsSupersetOf;
using Lines = std::vector<std::string>;

const std::pair<Rgb, const char*> kColours[] = {{drawing_colour::kSelectedPipe, "selected "},
                                                {drawing_colour::kRemoved, "removed "},
                                                {drawing_colour::kBegunPipe, "begun "},
                                                {drawing_colour::kRefused, "refused "},
                                                {drawing_colour::kKnown, "known "},
                                                {drawing_colour::kUnknown, "unknown "},
                                                {drawing_colour::kOld, "old "},
                                                {drawing_colour::kBeyondLimit, "beyond "},
                                                {drawing_colour::kNoValue, "no value "}};

std::string NameOf(const DrawnElement& element) {
    const std::string number = element.pipe == 0 ? "" : " " + GeneralText(element.pipe);
    const std::string quoted = "'" + element.text + "'";
    const std::array names = {
        std::string("cell"),  element.text, "pipe" + number,       std::string("point"),
        std::string("arrow"), quoted,       std::string("leader"), quoted};
    const auto colour =
        std::ranges::find(kColours, element.colour, &std::pair<Rgb, const char*>::first);
    return (colour == std::end(kColours) ? "" : colour->second) +
           names[static_cast<std::size_t>(element.kind)];
}

/// What was drawn, one line of text for each element.
Lines LinesOf(const DrawingList& drawing) {
    const auto pair = [](ScreenPoint at) {
        return " " + GeneralText(at.x) + "," + GeneralText(at.y);
    };
    Lines lines = {"grid from" + pair({drawing.firstColumn, drawing.firstRow})};
    for (const DrawnElement& element : drawing.elements) {
        const bool two = element.to != ScreenPoint{};
        lines.push_back(NameOf(element) + pair(element.from) + (two ? pair(element.to) : ""));
    }
    return lines;
}

DrawingList DrawingOf(const Plant& plant) {
    DrawingList drawing;
    DrawPlant(plant.project, plant.editor, drawing);
    return drawing;
}

Lines Drawn(const char* script) {
    Plant plant;
    plant.Do(script);
    return LinesOf(DrawingOf(plant));
}

struct Drawing {
    const char* what;
    const char* script;
    Lines drawn;  ///< the centre of cell (1,1) is 639,639; cells are 278 apart
};

const Drawing kDrawings[] = {
    {"every element",
     "L1,1 L5,1 L5,1 L5,3 pump L3,1 L9,9",
     {"grid from 1,1", "pipe 1 639,639 1195,639", "selected pipe 2 1751,639 1751,1195",
      "pipe 3 1195,639 1751,639", "point 639,639", "point 1751,639", "point 1751,1195",
      "point 2863,2863", "IMG\\arrt.ico 1056,500", "unknown '2' 1751,639 1451,339",
      "unknown '3' 1751,1195 2051,895"}},
    {"selected pipes",
     "L5,5 L2,5 L5,5 L5,6 R3,5 again end2=given C5,6",
     {"grid from 1,1", "selected pipe 1 1751,1751 917,1751", "selected pipe 2 1751,1751 1751,2029",
      "point 1751,1751", "point 917,1751", "point 1751,2029", "unknown '1' 1751,1751 2051,1451",
      "known '2' 917,1751 617,1451"}},
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
     {"grid from 1,1", "selected pipe 1 13705,1195 14261,1195", "point 13705,1195",
      "point 14261,1195", "unknown 'P1=.' 13844,1334", "leader 14261,1195 14400,546",
      "unknown 'P2=.' 14234,361", "arrow 13913,1126 14052,1195", "arrow 13913,1264 14052,1195"}},
    {"cut by scrolling, which hides data",
     "L1,3 L9,3 L2,5 L2,9 pump L5,3 labels S3,2",
     {"grid from 3,2", "pipe 1 500,917 1195,917", "pipe 3 1195,917 2307,917", "point 2307,917",
      "IMG\\arrt.ico 1056,778"}},
    {"data where it is scrolled to",
     "L1,3 L5,3 S3,2 labels",
     {"grid from 3,2", "selected pipe 1 500,917 1195,917", "point 1195,917",
      "unknown 'P2=.' 1334,1056", "arrow 778,848 917,917", "arrow 778,986 917,917"}},
    {"scrolled to the limit", "L1,3 L9,3 S1000,-4", {"grid from 250,1"}},
};

TEST(PlantDrawing, ShowsWhatTheScriptLeaves) {
    for (const Drawing& c : kDrawings) EXPECT_EQ(Drawn(c.script), c.drawn) << c.what;
}

TEST(PlantDrawing, ShowsWhatAnOpenQuestionWouldDelete) {
    Plant plant;
    plant.Do("L1,1 L5,1 pump L3,1 R2,1");
    std::vector<Lines> asked;
    const auto show = [&] { asked.push_back(LinesOf(DrawingOf(plant))); };
    DeleteSelected(plant.project, plant.editor, plant.boxes, show);
    plant.Do("L1,3 L5,3 loss L3,3 R3,3");
    DeleteSelected(plant.project, plant.editor, plant.boxes, show);
    ASSERT_EQ(asked.size(), 2U);
    EXPECT_THAT(asked[0], IsSupersetOf({"removed cell 1056,500", "removed pipe 1 639,639 1195,639",
                                        "pipe 2 1195,639 1751,639"}));
    EXPECT_THAT(asked[1], Contains("removed cell 1056,1056"));
    for (const std::string& line : LinesOf(DrawingOf(plant))) {
        EXPECT_FALSE(line.starts_with("removed")) << line;
    }
}

constexpr struct {
    const char* script;
    int column, row;
    const char* line;
} kBegunPipes[] = {
    {"L2,2", 6, 2, "begun pipe 917,917 2029,917"},
    {"L2,2", 2, 9, "begun pipe 917,917 917,2863"},
    {"L2,2", 3, 4, "refused pipe 917,917 1195,1473"},
    {"L2,5 L8,5 pump L4,5 L4,2", 4, 5, "refused pipe 1473,917 1473,1751"},
};

TEST(PlantDrawing, APipeThatIsBegunFollowsThePointer) {
    for (const auto& c : kBegunPipes) {
        Plant plant;
        plant.Do(c.script);
        DrawingList drawing;
        DrawBegunPipe(plant.project, plant.editor, plant.Place(c.column, c.row), drawing);
        ASSERT_EQ(drawing.elements.size(), 2U);
        EXPECT_EQ(LinesOf(drawing)[1], c.line);
    }
    Plant plant;
    plant.Do("L2,2");
    EXPECT_EQ(PipeTo(plant.project, plant.editor, plant.Place(2, 9))->cells, 7);
    EXPECT_FALSE(PipeTo(plant.project, plant.editor, plant.Place(2, 2)));
    EXPECT_FALSE(PipeTo(plant.project, plant.editor, 0)) << "beside the grid";
    plant.Do("L2,9");
    EXPECT_FALSE(PipeTo(plant.project, plant.editor, plant.Place(2, 12)));
}

TEST(PlantDrawing, ATipTellsOfPipeAndComponent) {
    Plant plant;
    Project& project = plant.project;
    plant.Do("L2,5 L9,5 loss L6,5 R3,5 again size=7 length=12.5");
    const auto tip = [&](int column) { return HoverText(project, plant.Place(column, 5)); };
    EXPECT_EQ(tip(3), "Pipe 1: 53.8 mm (2\"), 12.5 m");
    EXPECT_EQ(tip(6), "gate valve");
    EXPECT_EQ(tip(8), "Pipe 2: no diameter, no length");
    EXPECT_EQ(tip(12), "");
    project.settings.SectionType = Section::Rectangular;
    EXPECT_EQ(tip(3), "Pipe 1: 53.8 x 60.3 mm, 12.5 m");
    EXPECT_EQ(HoverFlow(0.5, -0.125), "1800 kg/h, -.13 m/s");
}

struct KindCase {
    const char* kind;
    bool old;
    Lines drawn;
};

/// Pipe 1 runs to the right, its flow is given; pipe 2 down, its flow up; pipe 3 is not computed.
const KindCase kKinds[] = {
    {"flows",
     false,
     {"known '1800' 1529,362", "unknown '7.000' 2955,1103", "arrow 1681,708 1820,639",
      "arrow 1681,570 1820,639", "arrow 2794,1264 2863,1125", "arrow 2932,1264 2863,1125"}},
    {"velocities", true, {"old '1.250' 1473,362", "old '0.040' 2955,1103"}},
    {"losses", false, {"beyond '432.1' 1473,362", "unknown '0.000' 2955,1103"}},
    {"sizes", false, {"known '53.8 mm 12.5 m'", "known '? mm ? m'"}},
    {"numbers", true, {"known '1'", "known '2'", "known '3'"}},
};

TEST(DataLabels, ShowAtThePipesWhatWasComputed) {
    for (const KindCase& c : kKinds) {
        Plant plant;
        plant.Do("L1,1 L9,1 L9,1 L9,5 L20,20 L30,20 R5,1 again size=7 length=12.5 R20,9");
        plant.editor.computed = {
            {1, {.flow = .5, .velocity = 1.25, .lossPerMetre = 432.1, .flowGiven = true}},
            {2, {.flow = -7. / 3600, .velocity = .04}}};
        plant.editor.limits = {.velocity = 1, .loss = 400, .lowestPressure = 1};
        plant.editor.resultsOld = c.old;
        plant.Do(std::string("show=") + c.kind);
        const Lines drawn = LinesOf(DrawingOf(plant));
        for (const std::string& line : c.drawn) {
            EXPECT_THAT(drawn, Contains(testing::StartsWith(line))) << c.kind;
        }
        const bool arrows =
            std::string_view("flows velocities losses").find(c.kind) != std::string_view::npos;
        const auto count = [&](const char* what) {
            return std::ranges::count_if(drawn, [&](const std::string& line) {
                return line.find(what) != std::string::npos;
            });
        };
        EXPECT_EQ(count("arrow"), arrows ? 4 : 0) << c.kind;
        EXPECT_EQ(count("'"), arrows ? 2 : 3) << c.kind;
        plant.Do("show=pressures");
        EXPECT_THAT(LinesOf(DrawingOf(plant)),
                    Contains(testing::StartsWith(c.old ? "old 'P1" : "beyond 'P1")));
    }
}

/// Colours by number on the scale, and the legend's steps; `-` is grey.
std::string ColoursOf(Plant& plant) {
    std::string text;
    const PipeColours colours(plant.project, plant.editor);
    const auto steps = colours.Steps();
    for (const auto& [number, pipe] : DrawnPipes(plant.project)) {
        const auto step = std::ranges::find(steps, colours.Of(number), &ColourStep::colour);
        text += step == steps.end() ? "-" : GeneralText(static_cast<int>(step - steps.begin()));
    }
    for (const ColourStep& step : steps) text += "|" + step.text;
    return text;
}

struct ColourCase {
    ColourKind kind;
    const char* legend;
    const char* colours;
};
const ColourCase kColourCases[] = {
    {ColourKind::Velocities, "Velocity, m/s", "0023-|below 0.5|0.5 – 1|1 – 1.5|from 1.5"},
    {ColourKind::Losses, "Losses, Pa/m", "0000-|all alike"},
    {ColourKind::Pressures, "Pressure, bar", "4210-|below 0|0 – 1|1 – 2|2 – 3|from 3"},
    {ColourKind::Flows, "Flow rate, kg/h",
     "0114-|below 10000|10000 – 20000|20000 – 30000|30000 – 40000|from 40000"},
};

TEST(PipeColours, HaveAFewRoundSteps) {
    Plant plant;
    plant.Do("L1,1 L9,1 L1,3 L9,3 L1,5 L9,5 L1,7 L9,7 L1,9 L9,9 R20,20");
    const double bar = kPascalPerBar;
    plant.editor.computed = {{1, {1, .04, 50, 3.5 * bar}},
                             {2, {-3, .49, 50, 1 * bar}},
                             {3, {4, 1, 50, .9 * bar}},
                             {4, {-12, 1.9, 50, -.5 * bar}}};
    EXPECT_EQ(ColoursOf(plant), "-----");
    EXPECT_EQ(LegendOf(plant.project, plant.editor), Legend{});
    for (const ColourCase& c : kColourCases) {
        plant.editor.colours = c.kind;
        EXPECT_EQ(ColoursOf(plant), c.colours) << c.legend;
        EXPECT_EQ(LegendOf(plant.project, plant.editor).colours, c.legend);
    }
    plant.Do("show=flows");
    EXPECT_EQ(LegendOf(plant.project, plant.editor).labels, "Labels: flow rate, kg/h");
    plant.editor.resultsOld = true;
    EXPECT_EQ(ColoursOf(plant), "-----");
    const Legend old = LegendOf(plant.project, plant.editor);
    EXPECT_EQ(old.colours, "Flow rate, kg/h: changed since the computation");
    EXPECT_EQ(old.labels, "Labels: flow rate, kg/h: changed since the computation");
    EXPECT_THAT(LinesOf(DrawingOf(plant)), Contains("no value pipe 5 639,2863 2863,2863"));
    plant.editor.colours = ColourKind::None;
    EXPECT_THAT(LinesOf(DrawingOf(plant)), Contains("pipe 5 639,2863 2863,2863"));
}

struct Box {
    int left, top, right, bottom;
};

/// With the size that a label is reckoned to have.
Box BoxOf(const DrawnElement& element) {
    const auto [left, right] = std::minmax(element.from.x, element.to.x);
    const auto [top, bottom] = std::minmax(element.from.y, element.to.y);
    if (element.kind == ElementKind::PipeLine) return {left, top, right, bottom};
    const ScreenPoint at = element.from;
    return {at.x, at.y, at.x + static_cast<int>(element.text.size()) * 111, at.y + 185};
}

bool Overlap(const Box& one, const Box& other) {
    return one.left < other.right && other.left < one.right && one.top < other.bottom &&
           other.top < one.bottom;
}

TEST(DataLabels, HideNeitherEachOtherNorPipesAndAreSeenWhole) {
    for (const char* kind : {"pressures", "sizes"}) {
        Plant plant;
        plant.Do("L3,3 L3,9 L1,6 L3,6 L1,9 L5,9 pump L3,7 L48,1 L50,1 L50,1 L50,4 L49,50 L50,50");
        plant.Do(std::string("R20,20 show=") + kind);
        const DrawingList drawing = DrawingOf(plant);
        std::vector<Box> taken;
        for (const DrawnElement& element : drawing.elements) {
            const bool pipe = element.kind == ElementKind::PipeLine && kind[0] == 's';
            if (pipe) taken.push_back(BoxOf(element));
            if (element.kind != ElementKind::TextLabel) continue;
            const Box box = BoxOf(element);
            for (const Box& other : taken) EXPECT_FALSE(Overlap(box, other)) << kind;
            EXPECT_TRUE(box.left >= 222 && box.top >= 222 && box.right <= 14678) << kind;
            taken.push_back(box);
        }
        EXPECT_EQ(taken.size(), kind[0] == 's' ? 16U : 13U);
        EXPECT_THAT(LinesOf(drawing), Contains(testing::StartsWith("leader")));
    }
}

}  // namespace
}  // namespace idrova
