// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "model/settings.h"

namespace idrova {

/// Capacities of the tables. All tables are used from index 1; slot 0 never holds data.
constexpr int kMaxPipes = 200;
constexpr int kMaxPoints = 400;
constexpr int kMaxGridSize = 100;
constexpr int kMaxCells = kMaxGridSize * kMaxGridSize;
constexpr int kTableSlots = 200;
constexpr int kFirstTableRow = 2;   ///< row 1 of the table is its header
constexpr int kLastTableRow = 100;  ///< last row that the table editor shows
constexpr int kMaxTableRows = kLastTableRow - kFirstTableRow + 1;

/// Coordinates and point numbers of a deleted pipe, and the coordinates of a deleted point.
constexpr std::int16_t kDeleted = -10;

/// A straight horizontal or vertical run between two points. SI units; coordinates are the
/// centres of the end cells in screen units.
struct PipeRec {
    float FlowRate = 0;           ///< kg/s, signed from `FlowFromPoint`; given or computed
    float Length = 0;             ///< m
    float Diameter = 0;           ///< inside diameter, or side a of a rectangular section, m
    std::int16_t StartPoint = 0;  ///< index into `Points`
    std::int16_t EndPoint = 0;
    std::int16_t X1 = 0, X2 = 0, Y1 = 0, Y2 = 0;
    std::int16_t Z1 = 0, Z2 = 0;     ///< heights of the ends, whole metres
    float OuterSize = 0;             ///< outside diameter, or side b, m
    std::int16_t FlowFromPoint = 0;  ///< the end that a positive flow leaves
    float LossSum = 0;               ///< sum of the loss coefficients of the pipe's own fittings

    bool IsDrawn() const { return X1 > 0; }
    bool IsEnd(int point) const { return StartPoint == point || EndPoint == point; }
    /// +1 when a positive flow leaves the start point, else -1.
    int DirectionSign() const { return FlowFromPoint == StartPoint ? 1 : -1; }
    bool operator==(const PipeRec&) const = default;
};

/// A pipe end; pipes that meet share it.
struct PointRec {
    float Pressure = 0;  ///< Pa, without the base pressure; given or computed
    std::int16_t X = 0, Y = 0;
    std::int16_t Cell = 0;  ///< grid cell that holds the point; 0 in a deleted point

    bool IsDrawn() const { return X > 0; }
    bool operator==(const PointRec&) const = default;
};

enum class CellKind : std::int16_t { Empty = 0, Pump = 1, Loss = 2, Crossed = 9 };

/// Where a pump delivers to.
enum class Delivery : std::int16_t { None = 0, Right = 1, Down = 2, Left = 3, Up = 4 };

/// How the pipe of a component lies.
enum class Axis : std::int16_t { None = 0, Horizontal = 1, Vertical = 2 };

/// One grid cell, with the component placed in it.
struct CellRec {
    std::string Name;  ///< the component's name in its database
    CellKind Kind = CellKind::Empty;
    float Param1 = 0;        ///< pump: a, Pa s2/kg2; loss: coefficient
    float Param2 = 0;        ///< pump: b, Pa s/kg; loss: fixed drop, Pa
    float PumpConstant = 0;  ///< pump: c, Pa; 0 when the constant of the curve is not known
    Delivery Direction = Delivery::None;
    Axis PipeAxis = Axis::None;
    float Result = 0;     ///< flow of the component's pipe A in the last computation, kg/s
    bool Placed = false;  ///< True while a component stands in the cell
    float MinFlow = 0, MaxFlow = 0;  ///< pump: range of its curve, kg/s
    std::int16_t CrossingPipe = 0;   ///< crossed: number of the pipe

    bool IsComponent() const { return Kind == CellKind::Pump || Kind == CellKind::Loss; }
    bool operator==(const CellRec&) const = default;
};

/// One row typed in table mode. A zero that was typed is a given value, an empty cell an unknown:
/// the three flags tell them apart.
struct TableRowRec {
    std::int16_t StartPoint = 0;  ///< 0 marks an empty row and ends the list
    float StartPressure = 0;      ///< Pa
    std::int16_t EndPoint = 0;
    float EndPressure = 0;       ///< Pa
    float RowDiameter = 0;       ///< m
    float RowLength = 0;         ///< m
    float RowFlowRate = 0;       ///< kg/s
    float RowZ1 = 0, RowZ2 = 0;  ///< m
    bool P1Given = false, P2Given = false, FlowGiven = false;
    float RowLossSum = 0;  ///< sum of the loss coefficients of the pipe's own fittings

    bool operator==(const TableRowRec&) const = default;
};

/// A column of the table in which a typed zero differs from an empty cell.
struct GivenColumn {
    int column;
    float TableRowRec::*value;
    bool TableRowRec::*given;
};
constexpr std::array<GivenColumn, 3> kGivenColumns = {
    {{2, &TableRowRec::StartPressure, &TableRowRec::P1Given},
     {4, &TableRowRec::EndPressure, &TableRowRec::P2Given},
     {8, &TableRowRec::RowFlowRate, &TableRowRec::FlowGiven}}};

/// Place and scale of the drawing grid in screen units, 15 to a pixel.
struct GridGeometry {
    int GridLeft = 500, GridTop = 500;
    int CellWidth = 278, CellHeight = 278;

    bool operator==(const GridGeometry&) const = default;
};

/// The one project of the program: its tables, and the settings it is computed with. Large
/// (about a megabyte): keep it on the heap.
struct Project {
    Settings settings;
    std::string ProjectName;         ///< full path of the file, or `kNewProject`
    std::string ProjectDescription;  ///< one line

    int numtubo = 0;  ///< pipes in use, deleted slots included
    int npres = 0;    ///< points in use
    int numins = 0;   ///< filled table rows
    int GridSize = 50;
    int CurrentPipe = 0;  ///< pipe shown in the command panel; 0 when none
    GridGeometry Grid;

    std::array<PipeRec, kMaxPipes + 1> Pipes;
    std::array<PointRec, kMaxPoints + 1> Points;
    std::array<CellRec, kMaxCells + 1> Cells;
    std::array<bool, kMaxPipes + 1> FlowUnknown{};
    std::array<bool, kMaxPoints + 1> PressureUnknown{};
    std::array<bool, kMaxCells + 1> CellIsNode{};
    std::array<TableRowRec, kTableSlots + 1> TableRows;

    int CellCount() const { return GridSize * GridSize; }
    bool operator==(const Project&) const = default;
};

constexpr const char* kNewProject = "New project";

/// The start-up values: settings, except that no fluid is chosen, and an empty network. Keeps a
/// name that is there.
void InitialiseProject(Project& project);

/// Empty tables and zero counts, table rows included; everything unknown.
void ClearNetwork(Project& project);

/// Empties the network: pressures of the points in use, cells, node flags, counts. Pipe fields,
/// `FlowUnknown`, the table rows and the settings stay.
void ResetProject(Project& project);

/// Recomputes the cells of kind `Crossed` from the live pipes. Component cells keep their kind.
/// A pipe whose `FlowFromPoint` is none of its ends gets its start point.
void RebuildPipeCells(Project& project);

}  // namespace idrova
