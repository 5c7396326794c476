// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/menu_table.h"

#include <array>

#include "physdata/pipe_settings.h"

namespace idrova {

namespace {

using enum MenuKind;

/// A caption of the panel without the tab at its end, after which a menu shows a shortcut.
constexpr std::string_view MenuCaption(const RoughnessPreset& preset) {
    return preset.caption.substr(0, preset.caption.find('\t'));
}

constexpr MenuEntry kMenuTable[] = {
    {.name = "File", .parent = "", .caption = "File", .kind = Menu},
    {.name = "Nuovo",
     .parent = "File",
     .caption = "New",
     .shortcut = "Ctrl+N",
     .tip = "Leave the current project and start an empty one"},
    {.name = "Apri",
     .parent = "File",
     .caption = "Open",
     .shortcut = "Ctrl+O",
     .tip = "Open a project file"},
    {.name = "Recenti", .parent = "File", .caption = "Open recent", .kind = Menu, .mnemonic = 7},
    {.name = "Salva",
     .parent = "File",
     .caption = "Save",
     .shortcut = "Ctrl+S",
     .tip = "Save the project; the previous version is kept beside it"},
    {.name = "Salva2",
     .parent = "File",
     .caption = "Save as",
     .mnemonic = 5,
     .shortcut = "Ctrl+Shift+S",
     .tip = "Save the project under a new name"},
    {.name = "Stampa",
     .parent = "File",
     .caption = "Print results",
     .shortcut = "Ctrl+P",
     .tip = "Print the report of the last computation",
     .separated = true},
    {.name = "Risultati",
     .parent = "File",
     .caption = "Show results",
     .mnemonic = 5,
     .shortcut = "F6",
     .tip = "Show the results file in the text editor"},
    {.name = "TabRisultati",
     .parent = "File",
     .caption = "Results",
     .mnemonic = 5,
     .shortcut = "Shift+F6",
     .tip = "Show the results of the last computation in tables"},
    {.name = "Esporta",
     .parent = "File",
     .caption = "Export results",
     .shortcut = "Ctrl+E",
     .tip = "Write results or drawing for the browser, paper, spreadsheets and other programs"},
    {.name = "Esci",
     .parent = "File",
     .caption = "Exit",
     .mnemonic = 1,
     .shortcut = "Ctrl+Q",
     .tip = "End the program",
     .separated = true},

    {.name = "Modifica", .parent = "", .caption = "Edit", .kind = Menu, .mnemonic = 1},
    {.name = "Annulla",
     .parent = "Modifica",
     .caption = "Undo",
     .shortcut = "Ctrl+Z",
     .tip = "Take the last change of the drawing or the table back"},
    {.name = "Ripeti",
     .parent = "Modifica",
     .caption = "Redo",
     .shortcut = "Ctrl+Y; Ctrl+Shift+Z",
     .tip = "Make the change again that was taken back"},
    {.name = "Trova",
     .parent = "Modifica",
     .caption = "Find pipe or point",
     .shortcut = "Ctrl+F",
     .tip = "Select the pipe of a number, or the one that ends in a point",
     .separated = true},

    {.name = "View", .parent = "", .caption = "View", .kind = Menu},
    {.name = "Labels", .parent = "View", .caption = "Labels", .kind = Menu},
    {.name = "LabelsNone",
     .parent = "Labels",
     .caption = "None",
     .kind = OneOf,
     .tip = "Show no labels on the drawing"},
    {.name = "LabelsPressures",
     .parent = "Labels",
     .caption = "Pressures",
     .kind = OneOf,
     .tip = "Label every point with its pressure"},
    {.name = "LabelsFlows",
     .parent = "Labels",
     .caption = "Flow rates",
     .kind = OneOf,
     .tip = "Label every pipe with its computed flow rate in kg/h"},
    {.name = "LabelsVelocities",
     .parent = "Labels",
     .caption = "Velocities",
     .kind = OneOf,
     .tip = "Label every pipe with its computed velocity in m/s"},
    {.name = "LabelsLosses",
     .parent = "Labels",
     .caption = "Losses per metre",
     .kind = OneOf,
     .tip = "Label every pipe with what it loses by friction and fittings in Pa/m"},
    {.name = "LabelsSizes",
     .parent = "Labels",
     .caption = "Diameters and lengths",
     .kind = OneOf,
     .tip = "Label every pipe with its inside diameter in mm and its length in m"},
    {.name = "LabelsNumbers",
     .parent = "Labels",
     .caption = "Pipe numbers",
     .kind = OneOf,
     .mnemonic = 6,
     .tip = "Label every pipe with its number"},

    {.name = "Fluido",
     .parent = "",
     .caption = "Fluid",
     .mnemonic = 1,
     .tip = "Choose and edit the fluids"},

    {.name = "Componenti", .parent = "", .caption = "Components", .kind = Menu},
    {.name = "Pompe",
     .parent = "Componenti",
     .caption = "Pumps",
     .tip = "Edit the pumps and see their curves"},
    {.name = "PerditeCon",
     .parent = "Componenti",
     .caption = "Concentrated loss",
     .tip = "Edit the concentrated losses"},

    {.name = "Tubi", .parent = "", .caption = "Pipes", .kind = Menu},
    {.name = "Rugosita", .parent = "Tubi", .caption = "Roughness", .kind = Menu},
    {.name = "t1",
     .parent = "Rugosita",
     .caption = MenuCaption(kRoughnessPresets[0]),
     .kind = OneOf,
     .tip = "Roughness 0.05 mm for all pipes"},
    {.name = "t2",
     .parent = "Rugosita",
     .caption = MenuCaption(kRoughnessPresets[1]),
     .kind = OneOf,
     .tip = "Roughness 0.02 mm for all pipes"},
    {.name = "t3",
     .parent = "Rugosita",
     .caption = MenuCaption(kRoughnessPresets[2]),
     .kind = OneOf,
     .tip = "Roughness 0.4 mm for all pipes"},
    {.name = "t4",
     .parent = "Rugosita",
     .caption = MenuCaption(kRoughnessPresets[3]),
     .kind = OneOf,
     .tip = "Roughness 2 mm for all pipes"},
    {.name = "t5",
     .parent = "Rugosita",
     .caption = MenuCaption(kRoughnessPresets[4]),
     .kind = OneOf,
     .mnemonic = 7,
     .tip = "Roughness 5 mm for all pipes"},
    {.name = "tt",
     .parent = "Rugosita",
     .caption = "user value",
     .kind = OneOf,
     .tip = "Type the roughness of all pipes",
     .separated = true},
    {.name = "Sezione", .parent = "Tubi", .caption = "section", .kind = Menu},
    {.name = "Circolare",
     .parent = "Sezione",
     .caption = "Circular",
     .kind = OneOf,
     .tip = "All pipes are round"},
    {.name = "Rettangolare",
     .parent = "Sezione",
     .caption = "Rectangular",
     .kind = OneOf,
     .tip = "All pipes are rectangular ducts with the sides a and b"},
    {.name = "Veloce",
     .parent = "Tubi",
     .caption = "Fast",
     .tip = "Give all pipes the same flow rate, length or diameter",
     .separated = true},

    {.name = "Modalita", .parent = "", .caption = "Mode", .kind = Menu},
    {.name = "Grafico",
     .parent = "Modalita",
     .caption = "Graphic",
     .kind = OneOf,
     .shortcut = "Ctrl+1",
     .tip = "Draw the plant on the grid"},
    {.name = "Tabella",
     .parent = "Modalita",
     .caption = "Table",
     .kind = OneOf,
     .shortcut = "Ctrl+2",
     .tip = "Type the network into a table"},
    {.name = "sintub",
     .parent = "Modalita",
     .caption = "single pipe",
     .kind = OneOf,
     .shortcut = "Ctrl+3",
     .tip = "Compute one pipe on its own"},

    {.name = "Correlazioni", .parent = "", .caption = "Equation", .kind = Menu},
    {.name = "Cor1",
     .parent = "Correlazioni",
     .caption = "Incompressible fluid",
     .kind = OneOf,
     .tip = "Liquids, and gases with small pressure drops"},
    {.name = "Cor2",
     .parent = "Correlazioni",
     .caption = "Compressible fluid (p>50 mbar)",
     .kind = OneOf,
     .tip = "Gases whose density changes along the pipe"},

    {.name = "Opzioni", .parent = "", .caption = "Options", .kind = Menu},
    {.name = "Editor",
     .parent = "Opzioni",
     .caption = "Editor",
     .tip = "Choose the text editor that shows the results"},
    {.name = "Ordina",
     .parent = "Opzioni",
     .caption = "Flow rates direction",
     .tip = "Turn the reference direction of every pipe with a negative flow rate",
     .separated = true},
    {.name = "Temperatura",
     .parent = "Opzioni",
     .caption = "Computation temperature",
     .tip = "Temperature of a compressible fluid"},
    {.name = "PresMini",
     .parent = "Opzioni",
     .caption = "Base pressure",
     .tip = "Pressure that is added to all computed pressures"},
    {.name = "Pressione", .parent = "Opzioni", .caption = "Pressure misure unit", .kind = Menu},
    {.name = "p_bar",
     .parent = "Pressione",
     .caption = "bar",
     .kind = OneOf,
     .tip = "Type and show pressures in bar (1 bar is 101325 Pa)"},
    {.name = "p_mbar",
     .parent = "Pressione",
     .caption = "mbar",
     .kind = OneOf,
     .tip = "Type and show pressures in mbar (1 mbar is 101.325 Pa)"},
    {.name = "Elris",
     .parent = "Opzioni",
     .caption = "Delete results",
     .tip = "Delete the results file",
     .separated = true},
    {.name = "Risultatiseq",
     .parent = "Opzioni",
     .caption = "Results saved in sequence",
     .kind = Check,
     .tip = "Add each report at the end of the results file"},
    {.name = "Subito",
     .parent = "Opzioni",
     .caption = "Compute at once",
     .kind = Check,
     .mnemonic = 1,
     .tip = "Compute the drawing or the table after every change, without questions",
     .separated = true},
    {.name = "BarraStrumenti",
     .parent = "Opzioni",
     .caption = "Tool bar",
     .kind = Check,
     .tip = "Show or hide the tool bar"},

    {.name = "Help", .parent = "", .caption = "Help", .kind = Menu},
    {.name = "Helpslinea",
     .parent = "Help",
     .caption = "On line help",
     .kind = Check,
     .shortcut = "Shift+F1",
     .tip = "Show or hide the hints"},
    {.name = "About", .parent = "Help", .caption = "Info", .kind = Menu},
    {.name = "Logo", .parent = "About", .caption = "Logo", .tip = "About this program"},
    {.name = "Help",
     .parent = "Help",
     .caption = "Help",
     .shortcut = "F1",
     .tip = "Show the user manual"},
};

std::string_view CheckedMode(WorkMode mode) {
    constexpr std::string_view kItems[] = {"Grafico", "Tabella", "sintub"};
    return kItems[static_cast<std::size_t>(mode) - 1];
}

/// The checked entry of each group.
std::array<std::string_view, 6> CheckedEntries(const Settings& settings, const ShellState& shell) {
    return {shell.roughnessItem,
            settings.SectionType == Section::Circular ? "Circolare" : "Rettangolare",
            CheckedMode(settings.Mode),
            settings.EquationType == Equation::Incompressible ? "Cor1" : "Cor2",
            settings.PressureUnit == Unit::Bar ? "p_bar" : "p_mbar",
            shell.labelsItem};
}

}  // namespace

std::span<const MenuEntry> MenuTable() {
    return kMenuTable;
}

std::string CaptionWithMnemonic(const MenuEntry& entry) {
    return std::string(entry.caption).insert(entry.mnemonic, "&");
}

bool IsEnabled(const MenuEntry& entry, WorkMode mode) {
    const bool drawing = entry.name == "Veloce" || entry.parent == "Labels";
    return !drawing || mode == WorkMode::Graphic;
}

bool IsChecked(const MenuEntry& entry, const Settings& settings, const ShellState& shell) {
    if (entry.name == "Helpslinea") return shell.HintsShown;
    if (entry.name == "BarraStrumenti") return shell.ToolBarShown;
    if (entry.name == "Subito") return shell.ComputesAtOnce;
    if (entry.name == "Risultatiseq") return settings.ResultsInSequence;
    for (const std::string_view checked : CheckedEntries(settings, shell)) {
        if (entry.name == checked) return true;
    }
    return false;
}

}  // namespace idrova
