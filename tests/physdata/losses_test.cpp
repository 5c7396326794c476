// SPDX-License-Identifier: GPL-3.0-or-later
#include "physdata/losses.h"

#include <gtest/gtest.h>

#include "physdata/component_lists.h"

namespace idrova {
namespace {

TEST(LossFields, HoldOneOfTheTwoValues) {
    const LossFields before{"?", "", "7", LossOption::FixedDrop};
    const std::vector<std::pair<LossRecord, LossFields>> cases = {
        {{"bend", 0.75F, 0}, {"bend", ".75", "", LossOption::Coefficient}},
        {{"filter", 0, 20000}, {"filter", "", "20000", LossOption::FixedDrop}},
        {{"both", 2, 3}, {"both", "", "3", LossOption::FixedDrop}},
        {{"none", 0, 0}, {"none", "", "7", LossOption::FixedDrop}}};
    for (const auto& [loss, shown] : cases) {
        LossFields fields = before;
        ShowLoss(fields, loss);
        EXPECT_EQ(fields, shown) << loss.name;
    }
}

TEST(LossFields, ShowTheDropInMilliBar) {
    const std::vector<std::pair<const char*, const char*>> cases = {
        {"101325", "1000."}, {"", "."}, {"20000", "197.385"}, {"-101.325", "-1."}};
    for (const auto& [drop, label] : cases) {
        EXPECT_EQ(MilliBarLabel({"", "", drop}), label) << drop;
    }
}

TEST(ComponentChoice, CopiesTheChosenComponent) {
    ComponentLists lists;
    const PumpRecord pump{.name = "P", .pMax = 300000, .qMin = 1, .pMin = 100000, .qMax = 3};
    lists.pumps = WithRecord(WithRecord(PumpDb{}, pump), {.name = "flat"});
    lists.losses = WithRecord(LossDb{}, {"filter", 0.1F, 20000});

    ComponentChoice choice;
    ChooseComponent(choice, lists, CellKind::Loss, 0);
    EXPECT_EQ(choice, (ComponentChoice{"filter", 0.1, 20000, 0, {}}));
    ChooseComponent(choice, lists, CellKind::Pump, 0);
    const ComponentChoice chosen{"P", -50000, 100000, 250000, pump};
    EXPECT_EQ(choice, chosen);
    for (const int position : {-1, 2, 50}) {
        ChooseComponent(choice, lists, CellKind::Pump, position);
        EXPECT_EQ(choice, chosen) << position;
    }
    ChooseComponent(choice, lists, CellKind::Pump, 1);
    EXPECT_EQ(choice.CompName, "flat");
    EXPECT_EQ(choice.CompValue3, 250000) << "a pump without a curve keeps the values before";
    EXPECT_EQ(ComponentNames(lists, CellKind::Pump), (std::vector<std::string>{"P", "flat"}));
    EXPECT_EQ(ComponentNames(lists, CellKind::Loss), (std::vector<std::string>{"filter"}));
}

}  // namespace
}  // namespace idrova
