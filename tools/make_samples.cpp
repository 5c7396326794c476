// SPDX-License-Identifier: GPL-3.0-or-later
// Draws and types the sample projects: make_samples DATABASES OUTPUT
#include <iostream>

#include "base/file.h"
#include "physdata/fluids.h"
#include "physdata/pipe_settings.h"
#include "physdata/settings_file.h"
#include "projectfile/project_file.h"
#include "sample_drawing.h"
#include "table/table_edit.h"

namespace idrova {
namespace {

namespace fs = std::filesystem;

/// Drinking water from an elevated tank into two loops with five groups of consumers.
SampleDrawing RingMain(const ComponentLists& lists) {
    SampleDrawing plant(lists, "Village water main: two loops fed from an elevated tank");
    plant.Pipe({4, 10}, {10, 10}, "5", 350);
    plant.Pipe({10, 10}, {25, 10}, "4", 180);
    plant.Pipe({25, 10}, {40, 10}, "4", 210);
    plant.Pipe({40, 10}, {40, 30}, "4", 160);
    plant.Pipe({25, 30}, {40, 30}, "4", 200);
    plant.Pipe({10, 30}, {25, 30}, "4", 190);
    plant.Pipe({10, 10}, {10, 30}, "4", 170);
    plant.Pipe({25, 10}, {25, 30}, "3", 150);

    plant.Pipe({25, 10}, {25, 5}, "2", 25);
    plant.KnownFlow("7200");
    plant.Pipe({40, 10}, {46, 10}, "2 1/2", 30);
    plant.KnownFlow("10800");
    plant.Pipe({40, 30}, {40, 36}, "2 1/2", 40);
    plant.KnownFlow("12600");
    plant.Pipe({25, 30}, {25, 36}, "2 1/2", 25);
    plant.KnownFlow("14400");
    plant.Pipe({10, 30}, {4, 30}, "2", 35);
    plant.KnownFlow("5400");

    plant.KnownPressure({4, 10}, .5F);
    plant.Height({4, 10}, 45);
    plant.Height({10, 10}, 12);
    plant.Height({25, 10}, 10);
    plant.Height({40, 10}, 8);
    plant.Height({40, 30}, 6);
    plant.Height({25, 30}, 7);
    plant.Height({10, 30}, 9);
    plant.Height({25, 5}, 13);
    plant.Height({46, 10}, 10);
    plant.Height({40, 36}, 8);
    plant.Height({25, 36}, 9);
    plant.Height({4, 30}, 10);
    return plant;
}

/// One of the two pump lines of the booster station, drawn in `row`.
void PumpLine(SampleDrawing& plant, int row) {
    plant.Pipe({10, row}, {26, row}, "2 1/2", 1);
    plant.Component(CellKind::Loss, {13, row}, "Gate valve, open");
    plant.Component(CellKind::Pump, {17, row}, "End suction 32-160, 2900 rpm");
    plant.Component(CellKind::Loss, {21, row}, "Check valve, swing");
    plant.Component(CellKind::Loss, {24, row}, "Gate valve, open");
    plant.PieceLength({15, row}, .8F);
    plant.PieceLength({25, row}, 2);
}

/// Two pumps side by side lift water from a ground tank to a roof tank, past a tap on the way.
SampleDrawing BoosterStation(const ComponentLists& lists) {
    SampleDrawing plant(lists, "Booster station: two pumps, roof tank and a consumer on the way");
    plant.Pipe({4, 20}, {10, 20}, "4", 3);
    plant.Component(CellKind::Loss, {7, 20}, "Entrance from a tank, sharp edge");
    plant.Pipe({10, 20}, {10, 28}, "4", 1.5F);
    PumpLine(plant, 20);
    PumpLine(plant, 28);
    plant.Pipe({26, 28}, {26, 20}, "3", 1.5F);
    plant.Pipe({26, 20}, {34, 20}, "3", 20);
    plant.Component(CellKind::Loss, {30, 20}, "Water meter, disk");
    plant.Pipe({34, 20}, {34, 14}, "3", 14);
    plant.Component(CellKind::Loss, {34, 17}, "Elbow 90°, standard");
    plant.Pipe({34, 14}, {34, 8}, "3", 13);
    plant.Pipe({34, 8}, {42, 8}, "3", 18);
    plant.Component(CellKind::Loss, {38, 8}, "Exit into a tank");
    plant.PieceLength({40, 8}, 1);
    plant.Pipe({34, 14}, {42, 14}, "2", 10);
    plant.KnownFlow("9000");

    plant.KnownPressure({4, 20}, .2F);
    plant.KnownPressure({42, 8}, 0);
    plant.Height({34, 17}, 2);
    plant.Height({34, 14}, 12);
    plant.Height({42, 14}, 12);
    plant.Height({34, 8}, 24);
    plant.Height({38, 8}, 24);
    plant.Height({42, 8}, 24);
    return plant;
}

/// Heating water round three circuits side by side, from and to a hydraulic separator. The pump
/// stands in a pipe that runs down.
SampleDrawing HeatingCircuit(const ComponentLists& lists) {
    SampleDrawing plant(lists, "Heating: three circuits behind a hydraulic separator, water 60 °C");
    plant.Pipe({6, 6}, {6, 16}, "1 1/4", 1.5F);
    plant.Component(CellKind::Pump, {6, 9}, "Circulator 32-80");
    plant.Component(CellKind::Loss, {6, 13}, "Check valve, swing");
    plant.PieceLength({6, 15}, 4);
    plant.Pipe({6, 16}, {14, 16}, "1 1/4", 10);
    plant.Pipe({14, 16}, {24, 16}, "1 1/4", 12);
    plant.Pipe({24, 16}, {34, 16}, "1", 12);

    plant.Pipe({14, 16}, {14, 34}, "3/4", 4);
    plant.Component(CellKind::Loss, {14, 20}, "Plug or ball valve, open");
    plant.Component(CellKind::Loss, {14, 25}, "Plate heat exchanger");
    plant.Component(CellKind::Loss, {14, 30}, "Gate valve, half open");
    plant.Pipe({24, 16}, {24, 34}, "3/4", 30);
    plant.Component(CellKind::Loss, {24, 25}, "Globe valve, open");
    plant.Pipe({34, 16}, {34, 34}, "3/4", 25);
    plant.Component(CellKind::Loss, {34, 25}, "Globe valve, open");

    plant.Pipe({34, 34}, {24, 34}, "1", 12);
    plant.Pipe({24, 34}, {14, 34}, "1 1/4", 12);
    plant.Pipe({14, 34}, {6, 34}, "1 1/4", 10);
    plant.Pipe({6, 34}, {6, 42}, "1 1/4", 3);
    plant.Component(CellKind::Loss, {6, 38}, "Filter, clean");

    plant.KnownPressure({6, 6}, 1.5F);
    plant.KnownPressure({6, 42}, 1.5F);
    plant.Height({24, 25}, 3);
    plant.Height({34, 25}, 6);
    return plant;
}

/// Air at 7 bar from the receiver into a ring with five groups of tools.
SampleDrawing CompressedAir(const ComponentLists& lists) {
    SampleDrawing plant(lists, "Workshop air: receiver at 7 bar, filter, ring and five takeoffs");
    plant.Pipe({4, 10}, {12, 10}, "2", 20);
    plant.Component(CellKind::Loss, {8, 10}, "Filter, clean");
    plant.Pipe({12, 10}, {20, 10}, "1 1/2", 30);
    plant.Pipe({20, 10}, {30, 10}, "1 1/2", 40);
    plant.Pipe({30, 10}, {38, 10}, "1 1/2", 30);
    plant.Pipe({38, 10}, {38, 20}, "1 1/2", 35);
    plant.Pipe({38, 20}, {38, 30}, "1 1/2", 35);
    plant.Pipe({30, 30}, {38, 30}, "1 1/2", 30);
    plant.Pipe({20, 30}, {30, 30}, "1 1/2", 40);
    plant.Pipe({12, 30}, {20, 30}, "1 1/2", 30);
    plant.Pipe({12, 10}, {12, 30}, "1 1/2", 70);

    plant.Pipe({20, 10}, {20, 4}, "3/4", 8);
    plant.KnownFlow("108");
    plant.Pipe({30, 10}, {30, 4}, "3/4", 8);
    plant.KnownFlow("72");
    plant.Pipe({38, 20}, {45, 20}, "1", 12);
    plant.KnownFlow("180");
    plant.Pipe({30, 30}, {30, 36}, "3/4", 8);
    plant.KnownFlow("90");
    plant.Pipe({20, 30}, {20, 36}, "1", 10);
    plant.KnownFlow("144");

    plant.KnownPressure({4, 10}, 7);
    return plant;
}

/// Rows of the table, typed from the top.
class SampleTable {
  public:
    explicit SampleTable(std::string description) {
        InitialiseProject(*project_);
        project_->ProjectDescription = std::move(description);
    }

    const Project& Typed() const { return *project_; }

    void Row(int from, int to, int nominalSize, int length, int height1, int height2) {
        using namespace table_column;
        ++row_;
        Type(kStartPoint, GeneralText(from));
        Type(kEndPoint, GeneralText(to));
        ChooseNominalSize(*project_, texts_, row_, nominalSize);
        Type(kLength, GeneralText(length));
        Type(kZ1, GeneralText(height1));
        Type(kZ2, GeneralText(height2));
    }

    /// Into the row typed last.
    void Type(int column, std::string_view text) {
        ChangeCell(*project_, texts_, row_, column, text);
    }

  private:
    std::unique_ptr<Project> project_ = std::make_unique<Project>();
    TableTexts texts_;
    int row_ = 1;
};

/// A field with eleven pairs of sprinkler lines on a main (points 2 to 13) that a second main (by
/// way of point 36) feeds at its far end; both leave the pumping station at point 1 together. Each
/// line takes 3240 kg/h.
SampleTable Irrigation() {
    constexpr int pairs = 11;
    constexpr int two = 7;  // nominal sizes by list position
    constexpr int three = 9;
    constexpr int four = 10;
    constexpr int five = 11;
    SampleTable table("Irrigation: eleven pairs of sprinkler lines, fed from both ends");
    const auto heightOf = [](int point) { return (point - 2) / 3; };
    table.Row(1, 2, five, 60, 0, 0);
    table.Type(table_column::kStartPressure, "4.2");
    for (int i = 2; i <= pairs + 1; ++i) {
        table.Row(i, i + 1, i <= 4 ? five : four, 24, heightOf(i), heightOf(i + 1));
    }
    for (int line = 0; line < 2 * pairs; ++line) {
        const int on = 3 + line % pairs;
        table.Row(on, pairs + 3 + line, two, 60, heightOf(on), heightOf(on));
        table.Type(table_column::kFlowRate, "3240");
    }
    constexpr int bend = 3 * pairs + 3;
    table.Row(2, bend, four, 40, 0, 1);
    table.Row(bend, pairs + 2, three, 200, 1, heightOf(pairs + 2));
    return table;
}

/// The settings of a new project, with a fluid of the database.
StoredSettings SettingsWith(const FluidDb& fluids, std::string_view name) {
    StoredSettings stored{{}, kRoughnessPresets[0].item};
    for (int slot = 1; slot <= fluids.count; ++slot) {
        if (fluids[slot].name == name) SetCurrentFluid(stored.settings, fluids[slot]);
    }
    if (stored.settings.FluidName.empty()) throw std::runtime_error("no such fluid");
    return stored;
}

StoredSettings AirSettings(const FluidDb& fluids) {
    StoredSettings stored = SettingsWith(fluids, "Air");
    stored.settings.EquationType = Equation::Compressible;
    stored.settings.FluidTemperature = 20;
    return stored;
}

void Put(const Project& project, const StoredSettings& settings, const fs::path& path) {
    Status written = WriteWholeFile(path, ProjectFileText(project));
    if (written) written = WriteSettingsOf(path, settings);
    if (!written) throw std::runtime_error(written.Error());
}

void MakeSamples(const fs::path& databases, const fs::path& output) {
    ComponentLists lists;
    NoBoxes boxes;
    LoadComponentDatabases(lists, databases, boxes);
    FluidDb fluids;
    LoadFluids(fluids, databases, boxes);
    const StoredSettings water = SettingsWith(fluids, "Water 20 \u00B0C");
    const StoredSettings warm = SettingsWith(fluids, "Water 60 \u00B0C");
    Put(BoosterStation(lists).Drawn(), water, output / "booster-station.iv");
    Put(CompressedAir(lists).Drawn(), AirSettings(fluids), output / "compressed-air.iv");
    Put(HeatingCircuit(lists).Drawn(), warm, output / "heating-circuit.iv");
    Put(Irrigation().Typed(), water, output / "irrigation-table.iv");
    Put(RingMain(lists).Drawn(), water, output / "ring-main.iv");
}

}  // namespace
}  // namespace idrova

int main(int argc, char** argv) {
    if (argc != 3) {
        std::cerr << "make_samples DATABASES OUTPUT\n";
        return 2;
    }
    try {
        idrova::MakeSamples(argv[1], argv[2]);
    } catch (const std::exception& fault) {
        std::cerr << fault.what() << '\n';
        return 1;
    }
    return 0;
}
