// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "base/message_boxes.h"
#include "model/project.h"
#include "physdata/losses.h"
#include "physdata/pumps.h"

namespace idrova {

/// The components that can be placed into pipes. Lives for the whole run.
struct ComponentLists {
    PumpDb pumps;
    LossDb losses;

    /// Number of components of a kind: `Pump` or `Loss`; 0 for any other.
    int CompCount(CellKind kind) const;
};

/// Reads "pompe.dat" and "percon.dat" of `folder`. See `LoadRecords`; one that fails leaves the
/// other to be loaded.
void LoadComponentDatabases(ComponentLists& lists, const std::filesystem::path& folder,
                            MessageBoxes& boxes);

std::vector<std::string> ComponentNames(const ComponentLists& lists, CellKind kind);

/// The component chosen for insertion, with a copy of its data.
struct ComponentChoice {
    std::string CompName;   ///< empty when none has been chosen
    double CompValue1 = 0;  ///< pump: a, Pa s2/kg2; loss: coefficient
    double CompValue2 = 0;  ///< pump: b, Pa s/kg; loss: fixed drop, Pa
    double CompValue3 = 0;  ///< pump: c, Pa
    PumpRecord ChosenPump;  ///< the pump last chosen; its flow range goes into the cell

    bool operator==(const ComponentChoice&) const = default;
};

/// Chooses the component in a list position (from 0). A position that holds none changes nothing;
/// a pump without a curve keeps the values chosen before.
void ChooseComponent(ComponentChoice& choice, const ComponentLists& lists, CellKind kind,
                     int position);

}  // namespace idrova
