// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/grid.h"
#include "model/project.h"

namespace idrova {

enum class PipeEnd { Start, End };

int PointAt(const PipeRec& pipe, PipeEnd end);
ScreenPoint PlaceOf(const PipeRec& pipe, PipeEnd end);

/// The end that lies further right, or further down on a vertical pipe.
PipeEnd FarEnd(const PipeRec& pipe);

constexpr PipeEnd Other(PipeEnd end) {
    return end == PipeEnd::Start ? PipeEnd::End : PipeEnd::Start;
}

/// Moves an end to a point. A reference point that was this end's goes with it, so that the flow
/// keeps its direction on the drawing.
void PutEnd(Project& project, PipeRec& pipe, PipeEnd end, int point);

/// True when the pipe runs through `place` and does not end there.
bool RunsThrough(const PipeRec& pipe, ScreenPoint place);

/// The first live point in the cell; 0 when there is none.
int LivePointIn(const Project& project, int cell);

/// Appends a point, unknown and without pressure, in the cell and marks the cell as a node. The
/// caller has checked the capacity.
int AddPoint(Project& project, int cell);

/// Appends a pipe without data, its flow unknown. The caller has checked the capacity and gives it
/// its ends.
int AddPipe(Project& project);

}  // namespace idrova
