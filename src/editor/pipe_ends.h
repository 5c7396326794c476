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

/// How many can be added: numbers not used yet, and those of deleted ones.
int FreePipes(const Project& project);
int FreePoints(const Project& project);

/// Adds a point, unknown and without pressure, in the cell and marks the cell as a node. Its number
/// is the next, or the lowest deleted one when all are used; the caller has checked that there is
/// one.
int AddPoint(Project& project, int cell);

/// Adds a pipe without data, its flow unknown, under a number found in the same way. The caller
/// gives it its ends.
int AddPipe(Project& project);

/// Makes one point of all that lie in the cell and returns it. A pressure that one of them has as
/// given stays given; the numbers of the others become deleted ones.
int JoinPoints(Project& project, int cell);

}  // namespace idrova
