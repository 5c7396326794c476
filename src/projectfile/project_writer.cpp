// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <vector>

#include "base/number_text.h"
#include "base/print_zones.h"
#include "model/drawn_records.h"
#include "model/grid.h"
#include "model/version.h"
#include "projectfile/project_file.h"
#include "projectfile/project_keys.h"

namespace idrova {
namespace {

void KeyLine(PrintZoneWriter& out, std::string_view key) {
    out.Text(key).EndLine();
}

/// A single that is not finite would make the whole file unreadable.
float Readable(float value) {
    return ToSingle(static_cast<double>(value));
}

int Readable(int value) {
    return value;
}

/// One line of numbers, each in a print zone of its own.
template <typename First, typename... Others>
void NumberLine(PrintZoneWriter& out, First first, Others... others) {
    out.Number(Readable(first));
    (out.NextZone().Number(Readable(others)), ...);
    out.EndLine();
}

/// A text takes one line whatever it holds.
void TextLine(PrintZoneWriter& out, std::string text) {
    std::replace(text.begin(), text.end(), '\r', ' ');
    std::replace(text.begin(), text.end(), '\n', ' ');
    out.Text(text).EndLine();
}

int Flag(bool value) {
    return value ? 1 : 0;
}

void WritePipes(PrintZoneWriter& out, const Project& project) {
    KeyLine(out, "list of pipes");
    for (int i = 1; i <= project.numtubo; ++i) {
        const auto slot = static_cast<std::size_t>(i);
        const PipeRec& pipe = project.Pipes[slot];
        const int startCell = pipe.IsDrawn() ? CellFromPoint(project, pipe.X1, pipe.Y1) : 0;
        const int endCell = pipe.IsDrawn() ? CellFromPoint(project, pipe.X2, pipe.Y2) : 0;
        NumberLine(out, startCell, endCell, pipe.Diameter, pipe.Length, pipe.FlowRate,
                   pipe.StartPoint, pipe.EndPoint, pipe.Z1, pipe.Z2, pipe.OuterSize);
        NumberLine(out, Flag(project.FlowUnknown[slot]));
    }
}

void WritePoints(PrintZoneWriter& out, const Project& project) {
    KeyLine(out, "list of pressures ");
    for (int i = 1; i <= project.npres; ++i) {
        const auto slot = static_cast<std::size_t>(i);
        const PointRec& point = project.Points[slot];
        NumberLine(out, point.Pressure, point.IsDrawn() ? point.Cell : 0);
        NumberLine(out, Flag(project.PressureUnknown[slot]));
    }
}

/// Numbers of the cells that `wanted` takes, ascending, whatever the size of the grid.
template <typename Predicate>
std::vector<int> CellsThat(Predicate wanted) {
    std::vector<int> cells;
    for (int cell = 1; cell <= kMaxCells; ++cell) {
        if (wanted(static_cast<std::size_t>(cell))) cells.push_back(cell);
    }
    return cells;
}

void WriteNodeCells(PrintZoneWriter& out, const Project& project) {
    const std::vector<int> cells =
        CellsThat([&](std::size_t cell) { return project.CellIsNode[cell]; });
    KeyLine(out, "nint");
    NumberLine(out, static_cast<int>(cells.size()));
    for (const int cell : cells) NumberLine(out, cell);
}

std::vector<int> ComponentCells(const Project& project) {
    return CellsThat([&](std::size_t cell) {
        const CellKind kind = project.Cells[cell].Kind;
        return kind != CellKind::Empty && kind != CellKind::Crossed;
    });
}

void WriteComponents(PrintZoneWriter& out, const Project& project, const std::vector<int>& cells) {
    KeyLine(out, "nco");
    NumberLine(out, static_cast<int>(cells.size()));
    for (const int number : cells) {
        const CellRec& cell = project.Cells[static_cast<std::size_t>(number)];
        NumberLine(out, number, static_cast<int>(cell.Kind), cell.Param1, cell.Param2,
                   static_cast<int>(cell.Direction), static_cast<int>(cell.PipeAxis), cell.MinFlow,
                   cell.MaxFlow);
        TextLine(out, cell.Name);
        NumberLine(out, Flag(cell.Placed));
    }
}

void TableRowLine(PrintZoneWriter& out, const TableRowRec& row) {
    NumberLine(out, row.StartPoint, row.StartPressure, row.EndPoint, row.EndPressure,
               row.RowDiameter, row.RowLength, row.RowFlowRate, row.RowZ1, row.RowZ2);
}

void WriteTableRows(PrintZoneWriter& out, const Project& project) {
    const int rows = CountTableRows(project);
    KeyLine(out, "numins");
    NumberLine(out, rows);
    KeyLine(out, "elenco tabe");
    for (int r = kFirstTableRow; r < kFirstTableRow + rows; ++r) {
        TableRowLine(out, project.TableRows[static_cast<std::size_t>(r)]);
    }
}

/// Only files of a table with filled rows below the first one without a start point have this
/// group.
void WriteRowsBelowGap(PrintZoneWriter& out, const Project& project) {
    std::vector<int> rows;
    for (int r = kFirstTableRow + CountTableRows(project); r <= kLastTableRow; ++r) {
        if (project.TableRows[static_cast<std::size_t>(r)] != TableRowRec()) rows.push_back(r);
    }
    if (rows.empty()) return;
    KeyLine(out, kRowsBelowGapKey);
    NumberLine(out, static_cast<int>(rows.size()));
    for (const int r : rows) {
        out.Number(r).NextZone();
        TableRowLine(out, project.TableRows[static_cast<std::size_t>(r)]);
    }
}

/// Only files with such a pump have this group.
void WritePumpConstants(PrintZoneWriter& out, const Project& project, std::vector<int> cells) {
    std::erase_if(cells, [&](int number) {
        const CellRec& cell = project.Cells[static_cast<std::size_t>(number)];
        return cell.Kind != CellKind::Pump || cell.PumpConstant == 0;
    });
    if (cells.empty()) return;
    KeyLine(out, kPumpConstantsKey);
    NumberLine(out, static_cast<int>(cells.size()));
    for (const int cell : cells) {
        NumberLine(out, cell, project.Cells[static_cast<std::size_t>(cell)].PumpConstant);
    }
}

/// Only files with a typed zero have this group.
void WriteGivenZeros(PrintZoneWriter& out, const Project& project) {
    std::vector<std::pair<int, int>> zeros;
    for (int r = kFirstTableRow; r <= kLastTableRow; ++r) {
        const TableRowRec& row = project.TableRows[static_cast<std::size_t>(r)];
        for (const GivenColumn& column : kGivenColumns) {
            if (row.*column.given && row.*column.value == 0) zeros.emplace_back(r, column.column);
        }
    }
    if (zeros.empty()) return;
    KeyLine(out, kGivenZerosKey);
    NumberLine(out, static_cast<int>(zeros.size()));
    for (const auto& [row, column] : zeros) NumberLine(out, row, column);
}

/// Only files with a pipe whose flow is counted from its end point have this group.
void WriteFlowsFromEnd(PrintZoneWriter& out, const Project& project) {
    std::vector<int> pipes;
    for (const auto& [number, pipe] : DrawnPipes(project)) {
        if (pipe.FlowFromPoint == pipe.EndPoint) pipes.push_back(number);
    }
    if (pipes.empty()) return;
    KeyLine(out, kFlowFromEndKey);
    NumberLine(out, static_cast<int>(pipes.size()));
    for (const int pipe : pipes) NumberLine(out, pipe);
}

/// Only files with a pipe or a table row that has losses of its own have this group: pipe or 0, row
/// or 0, sum of the coefficients.
void WritePipeLosses(PrintZoneWriter& out, const Project& project) {
    struct Entry {
        int pipe, row;
        float sum;
    };
    std::vector<Entry> entries;
    for (int r = kFirstTableRow; r <= kLastTableRow; ++r) {
        const float sum = project.TableRows[static_cast<std::size_t>(r)].RowLossSum;
        if (sum != 0) entries.push_back({0, r, sum});
    }
    for (const auto& [number, pipe] : DrawnPipes(project)) {
        if (pipe.LossSum != 0) entries.push_back({number, 0, pipe.LossSum});
    }
    if (entries.empty()) return;
    KeyLine(out, kPipeLossesKey);
    NumberLine(out, static_cast<int>(entries.size()));
    for (const auto& [pipe, row, sum] : entries) NumberLine(out, pipe, row, sum);
}

}  // namespace

int CountTableRows(const Project& project) {
    int row = kFirstTableRow;
    while (row <= kLastTableRow &&
           project.TableRows[static_cast<std::size_t>(row)].StartPoint != 0) {
        ++row;
    }
    return row - kFirstTableRow;
}

std::string ProjectFileText(const Project& project) {
    PrintZoneWriter out;
    KeyLine(out, VersionText());
    KeyLine(out, "numtubo");
    NumberLine(out, project.numtubo);
    KeyLine(out, "npres");
    NumberLine(out, project.npres);
    WritePipes(out, project);
    WritePoints(out, project);
    WriteNodeCells(out, project);
    const std::vector<int> components = ComponentCells(project);
    WriteComponents(out, project, components);
    WriteTableRows(out, project);
    WritePumpConstants(out, project, components);
    WriteGivenZeros(out, project);
    WriteFlowsFromEnd(out, project);
    WritePipeLosses(out, project);
    WriteRowsBelowGap(out, project);
    KeyLine(out, kDescriptionKey);
    TextLine(out, project.ProjectDescription);
    return out.Bytes();
}

}  // namespace idrova
