// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/pipe_ends.h"

#include <algorithm>

#include "model/drawn_records.h"

namespace idrova {
namespace {

bool StrictlyBetween(int value, int one, int other) {
    return std::min(one, other) < value && value < std::max(one, other);
}

template <typename Table>
int LiveRecords(const Table& table, int used) {
    return static_cast<int>(std::count_if(table.begin() + 1, table.begin() + 1 + used,
                                          [](const auto& record) { return record.IsDrawn(); }));
}

/// The number after the last used one, which then counts as used, or the lowest deleted one.
template <typename Table>
int NextNumber(const Table& table, int& used) {
    if (used + 1 < static_cast<int>(table.size())) return ++used;
    const auto deleted = std::find_if(table.begin() + 1, table.end(),
                                      [](const auto& record) { return !record.IsDrawn(); });
    return static_cast<int>(deleted - table.begin());
}

}  // namespace

int PointAt(const PipeRec& pipe, PipeEnd end) {
    return end == PipeEnd::Start ? pipe.StartPoint : pipe.EndPoint;
}

ScreenPoint PlaceOf(const PipeRec& pipe, PipeEnd end) {
    return end == PipeEnd::Start ? ScreenPoint{pipe.X1, pipe.Y1} : ScreenPoint{pipe.X2, pipe.Y2};
}

PipeEnd FarEnd(const PipeRec& pipe) {
    return pipe.X2 + pipe.Y2 > pipe.X1 + pipe.Y1 ? PipeEnd::End : PipeEnd::Start;
}

void PutEnd(Project& project, PipeRec& pipe, PipeEnd end, int point) {
    const auto number = static_cast<std::int16_t>(point);
    const PointRec& place = project.Points[point];
    if (pipe.FlowFromPoint == PointAt(pipe, end)) pipe.FlowFromPoint = number;
    if (end == PipeEnd::Start) {
        pipe.StartPoint = number;
        pipe.X1 = place.X;
        pipe.Y1 = place.Y;
    } else {
        pipe.EndPoint = number;
        pipe.X2 = place.X;
        pipe.Y2 = place.Y;
    }
}

bool RunsThrough(const PipeRec& pipe, ScreenPoint place) {
    if (pipe.Y1 == pipe.Y2) {
        return place.y == pipe.Y1 && StrictlyBetween(place.x, pipe.X1, pipe.X2);
    }
    return place.x == pipe.X1 && StrictlyBetween(place.y, pipe.Y1, pipe.Y2);
}

int LivePointIn(const Project& project, int cell) {
    for (const auto& [number, point] : DrawnPoints(project)) {
        if (point.Cell == cell) return number;
    }
    return 0;
}

int FreePipes(const Project& project) {
    return kMaxPipes - LiveRecords(project.Pipes, project.numtubo);
}

int FreePoints(const Project& project) {
    return kMaxPoints - LiveRecords(project.Points, project.npres);
}

int AddPoint(Project& project, int cell) {
    const int number = NextNumber(project.Points, project.npres);
    const ScreenPoint centre = CellCentre(project, cell);
    PointRec& point = project.Points[number];
    point = PointRec();
    point.X = static_cast<std::int16_t>(centre.x);
    point.Y = static_cast<std::int16_t>(centre.y);
    point.Cell = static_cast<std::int16_t>(cell);
    project.PressureUnknown[number] = true;
    project.CellIsNode[cell] = true;
    return number;
}

int AddPipe(Project& project) {
    const int number = NextNumber(project.Pipes, project.numtubo);
    project.Pipes[number] = PipeRec();
    project.FlowUnknown[number] = true;
    return number;
}

int JoinPoints(Project& project, int cell) {
    const int kept = LivePointIn(project, cell);
    for (const auto& [other, point] : DrawnPoints(project)) {
        if (point.Cell != cell || other == kept) continue;
        if (project.PressureUnknown[kept] && !project.PressureUnknown[other]) {
            project.PressureUnknown[kept] = false;
            project.Points[kept].Pressure = point.Pressure;
        }
        for (const auto& [number, pipe] : DrawnPipes(project)) {
            for (const PipeEnd end : {PipeEnd::Start, PipeEnd::End}) {
                if (PointAt(pipe, end) == other) PutEnd(project, pipe, end, kept);
            }
        }
        point = PointRec{0, kDeleted, kDeleted, 0};
        project.PressureUnknown[other] = true;
    }
    return kept;
}

}  // namespace idrova
