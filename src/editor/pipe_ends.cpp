// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/pipe_ends.h"

#include <algorithm>

namespace idrova {
namespace {

bool StrictlyBetween(int value, int one, int other) {
    return std::min(one, other) < value && value < std::max(one, other);
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
    for (int i = 1; i <= project.npres; ++i) {
        if (project.Points[i].IsDrawn() && project.Points[i].Cell == cell) return i;
    }
    return 0;
}

int AddPoint(Project& project, int cell) {
    const int number = ++project.npres;
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
    const int number = ++project.numtubo;
    project.Pipes[number] = PipeRec();
    project.FlowUnknown[number] = true;
    return number;
}

}  // namespace idrova
