// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/find_element.h"

#include <algorithm>

#include "base/number_text.h"
#include "editor/pipe_ends.h"
#include "editor/selection.h"
#include "model/drawn_records.h"

namespace idrova {
namespace {

struct Found {
    int pipe = 0;  ///< 0 when there is none
    PipeEnd end = PipeEnd::Start;
};

Found Find(const Project& project, std::string_view text) {
    const bool isPoint = text.starts_with('P') || text.starts_with('p');
    const int wanted = ToInt16(ReadNumber(isPoint ? text.substr(1) : text));
    for (const auto& [number, pipe] : DrawnPipes(project)) {
        if (isPoint ? pipe.StartPoint == wanted : number == wanted) return {number};
        if (isPoint && pipe.EndPoint == wanted) return {number, PipeEnd::End};
    }
    return {};
}

}  // namespace

bool FindElement(Project& project, Editor& editor, std::string_view text) {
    const Found found = Find(project, text);
    if (found.pipe == 0) return false;
    SelectPipe(project, editor, found.pipe);
    editor.framesEnabled = true;
    const PipeRec& pipe = project.Pipes[found.pipe];
    const int cell = project.Points[PointAt(pipe, found.end)].Cell;
    // Right of and below the first cell shown, all of the grid is in sight.
    editor.ScrX = std::min(editor.ScrX, (cell - 1) % project.GridSize + 1);
    editor.ScrY = std::min(editor.ScrY, (cell - 1) / project.GridSize + 1);
    return true;
}

}  // namespace idrova
