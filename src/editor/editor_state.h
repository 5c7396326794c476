// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <map>
#include <string_view>
#include <vector>

#include "model/limits.h"
#include "model/project.h"
#include "physdata/component_lists.h"

namespace idrova {

/// What the next left click on the drawing means.
enum class InsertState {
    FirstPoint = 1,  ///< first point of a pipe
    EndPoint = 2,    ///< end point of the pipe begun
    Pump = 4,        ///< place of the chosen pump
    Loss = 5,        ///< place of the chosen concentrated loss
};

/// What goes when a question about a deletion is answered with OK.
struct Removal {
    int pipe = 0;            ///< 0 when none
    std::vector<int> cells;  ///< of components

    bool operator==(const Removal&) const = default;
};

/// What the data labels show.
enum class LabelKind { Pressures, Flows, Velocities, Losses, Sizes, Numbers };

/// What the colours of the pipes show.
enum class ColourKind { None, Velocities, Losses, Pressures, Flows };

/// What a run found for a pipe.
struct ComputedPipe {
    double flow = 0;          ///< kg/s, positive from the pipe's start point to its end point
    double velocity = 0;      ///< m/s, never negative
    double lossPerMetre = 0;  ///< Pa/m, never negative
    double pressure = 0;      ///< Pa, the mean of its ends
    bool flowGiven = false;
    bool operator==(const ComputedPipe&) const = default;
};

/// What the plant editor remembers beside the project. What the windows show of the insertion (hint
/// lines, blinking button, enabled frames) follows from it.
struct Editor {
    InsertState state = InsertState::FirstPoint;
    int firstCell = 0;              ///< first cell of the pipe begun; 0 unless `EndPoint`
    int selectedComponent = 0;      ///< cell of the component last selected; 0 when none
    int selectedIn = 0;             ///< cell of the last right click that selected; 0 after others
    std::vector<int> alsoSelected;  ///< pipes beside the current one, ascending
    Removal removal;                ///< what an open question would delete
    bool framesEnabled = true;  ///< the panel's frames; a left click locks them, a right one opens
    bool DataShown = false;     ///< the data labels are shown on the drawing
    LabelKind labels = LabelKind::Pressures;
    ColourKind colours = ColourKind::None;
    bool resultsOld = false;  ///< computed values do not belong to the plant as it is
    std::map<int, ComputedPipe>
        computed;            ///< by pipe; what labels and colours need of the last run
    Limits limits;           ///< that the labels are held against
    int ScrX = 1, ScrY = 1;  ///< column and row that the drawing shows first

    CellKind componentKind = CellKind::Pump;  ///< `Combo1`
    int componentPosition = -1;               ///< `Combo3`; -1 when its list is empty
    ComponentChoice choice;

    bool operator==(const Editor&) const = default;
};

bool IsArmed(const Editor& editor);

/// Takes the labels away that every click does away with: pressures and flow directions.
void HidePressures(Editor& editor);

/// The hint window's lines.
std::array<std::string_view, 4> HintLines(const Editor& editor);

/// Drops whatever is begun: a pipe without its end, an armed component.
void AbortInsertion(Editor& editor);

/// Fits the editor to a network that was put in place of the one shown, and derives its crossed
/// cells: nothing is begun, selected or labelled, scrolled to the first cell. The component choice
/// stays.
void RedrawProject(Project& project, Editor& editor);

}  // namespace idrova
