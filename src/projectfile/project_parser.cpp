// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <bitset>
#include <cmath>

#include "base/number_text.h"
#include "projectfile/project_content.h"
#include "projectfile/project_keys.h"
#include "projectfile/project_lines.h"

namespace idrova {
namespace {

constexpr int kFirstPipeLine = 7;
constexpr std::size_t kRowItems = 9;

/// A pipe or point that is deleted has 0 in the place of its cells.
void CheckPipe(ProjectLines& lines, const ProjectContent::Pipe& pipe, int pointCount) {
    const PipeRec& record = pipe.record;
    if ((pipe.startCell == 0) != (pipe.endCell == 0)) {
        lines.Fail("one end of the pipe has no cell");
    } else if (pipe.startCell == 0) {
        if (record.StartPoint != kDeleted || record.EndPoint != kDeleted) {
            lines.Fail("the points of a deleted pipe must be -10");
        }
    } else if (record.StartPoint < 1 || record.StartPoint > pointCount || record.EndPoint < 1 ||
               record.EndPoint > pointCount) {
        lines.Fail("the points of the pipe must lie between 1 and " + GeneralText(pointCount));
    }
}

ProjectContent::Pipe ReadPipe(ProjectLines& lines, int cellCount, int pointCount) {
    ProjectContent::Pipe pipe;
    PipeRec& record = pipe.record;
    lines.Numbers(10);
    pipe.startCell = lines.Whole(0, cellCount);
    pipe.endCell = lines.Whole(0, cellCount);
    record.Diameter = lines.Single();
    record.Length = lines.Single();
    record.FlowRate = lines.Single();
    record.StartPoint = lines.Int16();
    record.EndPoint = lines.Int16();
    record.FlowFromPoint = record.StartPoint;
    record.Z1 = lines.Int16();
    record.Z2 = lines.Int16();
    record.OuterSize = lines.Single();
    CheckPipe(lines, pipe, pointCount);
    pipe.flowUnknown = lines.Flag();
    return pipe;
}

ProjectContent::Point ReadPoint(ProjectLines& lines, int cellCount) {
    ProjectContent::Point point;
    lines.Numbers(2);
    point.pressure = lines.Single();
    point.cell = lines.Whole(0, cellCount);
    point.pressureUnknown = lines.Flag();
    return point;
}

/// Any number that names nothing is `None`.
template <typename Name>
Name NamedBy(float number, Name last) {
    const bool names =
        number >= 1 && number <= static_cast<float>(last) && number == std::floor(number);
    return names ? static_cast<Name>(static_cast<int>(number)) : Name::None;
}

ProjectContent::Component ReadComponent(ProjectLines& lines, int cellCount) {
    ProjectContent::Component component;
    CellRec& record = component.record;
    lines.Numbers(8);
    component.cell = lines.Whole(1, cellCount);
    const int lowest = static_cast<int>(CellKind::Pump);
    const int highest = static_cast<int>(CellKind::Loss);
    record.Kind = static_cast<CellKind>(lines.Whole(lowest, highest));
    record.Param1 = lines.Single();
    record.Param2 = lines.Single();
    record.Direction = NamedBy<Delivery>(lines.Single(), Delivery::Up);
    record.PipeAxis = NamedBy<Axis>(lines.Single(), Axis::Vertical);
    record.MinFlow = lines.Single();
    record.MaxFlow = lines.Single();
    record.Name = lines.Text();
    record.Placed = lines.Flag();
    return component;
}

/// The items of a row; what stands before them in the line is read.
TableRowRec ReadTableRow(ProjectLines& lines) {
    TableRowRec row;
    row.StartPoint = lines.Int16();
    row.StartPressure = lines.Single();
    row.EndPoint = lines.Int16();
    row.EndPressure = lines.Single();
    row.RowDiameter = lines.Single();
    row.RowLength = lines.Single();
    row.RowFlowRate = lines.Single();
    row.RowZ1 = lines.Single();
    row.RowZ2 = lines.Single();
    for (const GivenColumn& column : kGivenColumns) row.*column.given = row.*column.value != 0;
    return row;
}

void ReadPipesAndPoints(ProjectLines& lines, int cellCount, ProjectContent& content) {
    lines.Key();
    const int pipes = lines.Count(kMaxPipes);
    lines.Key();
    const int points = lines.Count(kMaxPoints);
    lines.Key();
    for (int i = 0; i < pipes && !lines.Failed(); ++i) {
        content.pipes.push_back(ReadPipe(lines, cellCount, points));
    }
    lines.Key();
    for (int i = 0; i < points && !lines.Failed(); ++i) {
        content.points.push_back(ReadPoint(lines, cellCount));
    }
}

bool IsDeleted(const ProjectContent& content, int point) {
    return content.points[static_cast<std::size_t>(point - 1)].cell == 0;
}

void CheckPipeEnds(ProjectLines& lines, const ProjectContent& content) {
    int line = kFirstPipeLine;
    for (const ProjectContent::Pipe& pipe : content.pipes) {
        if (lines.Failed()) return;
        const bool live = pipe.startCell != 0;
        if (live && (IsDeleted(content, pipe.record.StartPoint) ||
                     IsDeleted(content, pipe.record.EndPoint))) {
            lines.FailAt(line, "the pipe ends in a deleted point");
        }
        line += 2;
    }
}

void ReadCells(ProjectLines& lines, int cellCount, ProjectContent& content) {
    lines.Key();
    const int nodes = lines.Count(kMaxCells);
    for (int i = 0; i < nodes && !lines.Failed(); ++i) {
        lines.Numbers(1);
        content.nodeCells.push_back(lines.Whole(1, kMaxCells));
    }
    lines.Key();
    const int components = lines.Count(kMaxCells);
    for (int i = 0; i < components && !lines.Failed(); ++i) {
        content.components.push_back(ReadComponent(lines, cellCount));
    }
}

void ReadTableRows(ProjectLines& lines, ProjectContent& content) {
    lines.Key();
    const int rows = lines.Count(kTableSlots - kFirstTableRow + 1);
    lines.Key();
    for (int i = 0; i < rows && !lines.Failed(); ++i) {
        lines.Numbers(kRowItems);
        content.rows.push_back(ReadTableRow(lines));
    }
}

void ReadPumpConstants(ProjectLines& lines, ProjectContent& content) {
    std::bitset<kMaxCells + 1> pumps;
    for (const ProjectContent::Component& component : content.components) {
        pumps.set(static_cast<std::size_t>(component.cell),
                  component.record.Kind == CellKind::Pump);
    }
    const int count = lines.Count(kMaxCells);
    for (int i = 0; i < count && !lines.Failed(); ++i) {
        lines.Numbers(2);
        const int cell = lines.Whole(1, kMaxCells);
        content.pumpConstants.push_back({cell, lines.Single()});
        if (!pumps[static_cast<std::size_t>(cell)]) lines.Fail("no pump stands in this cell");
    }
}

/// A zero that is given in a row which may not have been read yet.
struct GivenZero {
    int row;
    bool TableRowRec::*given;
    int line;
};

std::vector<GivenZero> ReadGivenZeros(ProjectLines& lines, const ProjectContent& content) {
    std::vector<GivenZero> zeros;
    const int count = lines.Count(3 * kMaxTableRows);
    const int listed = kFirstTableRow + static_cast<int>(content.rows.size()) - 1;
    for (int i = 0; i < count && !lines.Failed(); ++i) {
        lines.Numbers(2);
        const int row = lines.Whole(kFirstTableRow, std::max(listed, kLastTableRow));
        const int number = lines.Int16();
        const auto* const column = std::ranges::find(kGivenColumns, number, &GivenColumn::column);
        if (column == kGivenColumns.end()) {
            lines.Fail("the column must be 2, 4 or 8");
        } else {
            zeros.push_back({row, column->given, lines.LineNumber()});
        }
    }
    return zeros;
}

void ReadRowsBelowGap(ProjectLines& lines, ProjectContent& content) {
    int above = kFirstTableRow + static_cast<int>(content.rows.size()) - 1;
    const int end = above + 1;
    const int count = lines.Count(kMaxTableRows);
    for (int i = 0; i < count && !lines.Failed(); ++i) {
        lines.Numbers(1 + kRowItems);
        above = lines.Whole(above + 1, kLastTableRow);
        content.rowsBelowGap.push_back({above, ReadTableRow(lines)});
        if (above == end && content.rowsBelowGap.back().record.StartPoint != 0) {
            lines.Fail("there is no gap above this row");
        }
    }
}

/// In the list or below its gap; a fault of `line` when there is none.
TableRowRec* FindRow(ProjectLines& lines, int line, ProjectContent& content, int row) {
    const auto listed = static_cast<std::size_t>(row - kFirstTableRow);
    if (listed < content.rows.size()) return &content.rows[listed];
    const auto loose =
        std::ranges::find(content.rowsBelowGap, row, &ProjectContent::LooseRow::number);
    if (loose != content.rowsBelowGap.end()) return &loose->record;
    lines.FailAt(line, "the file has no such row");
    return nullptr;
}

void MarkGivenZeros(ProjectLines& lines, const std::vector<GivenZero>& zeros,
                    ProjectContent& content) {
    for (const GivenZero& zero : zeros) {
        TableRowRec* const row = FindRow(lines, zero.line, content, zero.row);
        if (row != nullptr) row->*zero.given = true;
    }
}

void ReadFlowsFromEnd(ProjectLines& lines, ProjectContent& content) {
    const int pipes = static_cast<int>(content.pipes.size());
    const int count = lines.Count(kMaxPipes);
    for (int i = 0; i < count && !lines.Failed(); ++i) {
        lines.Numbers(1);
        const int number = lines.Whole(1, pipes);
        if (lines.Failed()) return;
        PipeRec& pipe = content.pipes[static_cast<std::size_t>(number - 1)].record;
        pipe.FlowFromPoint = pipe.EndPoint;
    }
}

/// Losses of the pipe of a row which may not have been read yet.
struct RowLosses {
    int row;
    float sum;
    int line;
};

std::vector<RowLosses> ReadPipeLosses(ProjectLines& lines, ProjectContent& content) {
    std::vector<RowLosses> losses;
    const int pipes = static_cast<int>(content.pipes.size());
    const int listed = kFirstTableRow + static_cast<int>(content.rows.size()) - 1;
    const int count = lines.Count(kMaxPipes + kTableSlots);
    for (int i = 0; i < count && !lines.Failed(); ++i) {
        lines.Numbers(3);
        const int pipe = lines.Whole(0, pipes);
        const int row = pipe == 0 ? lines.Whole(kFirstTableRow, std::max(listed, kLastTableRow))
                                  : lines.Whole(0, 0);
        const float sum = lines.Single();
        if (sum < 0) lines.Fail("the sum of the loss coefficients must not be negative");
        if (lines.Failed()) return losses;
        if (pipe == 0) {
            losses.push_back({row, sum, lines.LineNumber()});
        } else {
            content.pipes[static_cast<std::size_t>(pipe - 1)].record.LossSum = sum;
        }
    }
    return losses;
}

void PutRowLosses(ProjectLines& lines, const std::vector<RowLosses>& losses,
                  ProjectContent& content) {
    for (const auto& [number, sum, line] : losses) {
        TableRowRec* const row = FindRow(lines, line, content, number);
        if (row != nullptr) row->RowLossSum = sum;
    }
}

/// The key before the description is compared only where the file may be cut off inside it.
void ReadDescription(ProjectLines& lines, ProjectContent& content) {
    if (lines.AtEnd()) return;
    if (!lines.PassKey(kDescriptionKey)) lines.Key();
    content.description = lines.LastText();
}

}  // namespace

bool IsBeforeVersion25(std::string_view text) {
    constexpr std::size_t longestVersion = 64;
    std::string_view item = text.substr(0, longestVersion);
    item = item.substr(0, item.find_first_of("\r\n"));
    item.remove_prefix(std::min(item.find_first_not_of(" \t"), item.size()));
    const std::optional<double> version = ParseNumber(item.substr(0, item.find_first_of(" \t")));
    return version && *version < 2.5;
}

Result<ProjectContent> ParseProject(std::string_view text, int gridSize) {
    const int cellCount = gridSize * gridSize;
    ProjectLines lines(text);
    ProjectContent content;
    lines.Line();
    ReadPipesAndPoints(lines, cellCount, content);
    CheckPipeEnds(lines, content);
    ReadCells(lines, cellCount, content);
    ReadTableRows(lines, content);
    if (lines.PassKey(kPumpConstantsKey)) ReadPumpConstants(lines, content);
    std::vector<GivenZero> zeros;
    if (lines.PassKey(kGivenZerosKey)) zeros = ReadGivenZeros(lines, content);
    if (lines.PassKey(kFlowFromEndKey)) ReadFlowsFromEnd(lines, content);
    std::vector<RowLosses> losses;
    if (lines.PassKey(kPipeLossesKey)) losses = ReadPipeLosses(lines, content);
    if (lines.PassKey(kRowsBelowGapKey)) ReadRowsBelowGap(lines, content);
    MarkGivenZeros(lines, zeros, content);
    PutRowLosses(lines, losses, content);
    ReadDescription(lines, content);
    if (lines.Failed()) return Failure{lines.Fault()};
    return content;
}

}  // namespace idrova
