// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/frame/view_commands.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <string_view>

#include "results/network_results.h"
#include "ui/drawing/frm_cel.h"
#include "ui/drawing/plant_view.h"
#include "ui/frame/mdi.h"
#include "ui/frame/menu_bar.h"
#include "ui/kit/child_windows.h"
#include "ui/program.h"

namespace idrova {

namespace {

constexpr std::string_view kNoLabels = "LabelsNone";

struct LabelChoice {
    std::string_view item;
    LabelKind kind = LabelKind::Pressures;
};
constexpr LabelChoice kLabelChoices[] = {
    {"LabelsPressures", LabelKind::Pressures},   {"LabelsFlows", LabelKind::Flows},
    {"LabelsVelocities", LabelKind::Velocities}, {"LabelsLosses", LabelKind::Losses},
    {"LabelsSizes", LabelKind::Sizes},           {"LabelsNumbers", LabelKind::Numbers}};

struct ColourChoice {
    std::string_view item;
    ColourKind kind = ColourKind::None;
};
constexpr ColourChoice kColourChoices[] = {{"ColoursNone", ColourKind::None},
                                           {"ColoursVelocities", ColourKind::Velocities},
                                           {"ColoursLosses", ColourKind::Losses},
                                           {"ColoursPressures", ColourKind::Pressures},
                                           {"ColoursFlows", ColourKind::Flows}};

std::string_view ItemOf(ColourKind kind) {
    return std::ranges::find(kColourChoices, kind, &ColourChoice::kind)->item;
}

std::string_view ItemOf(LabelKind kind) {
    return std::ranges::find(kLabelChoices, kind, &LabelChoice::kind)->item;
}

/// Of the pipes that run between the same points still.
std::map<int, ComputedPipe> ComputedPipes(const Project& project, const RunRecord* record) {
    std::map<int, ComputedPipe> pipes;
    if (record == nullptr || !record->results) return pipes;
    const auto pressure = [&](int point) {
        return double{record->results->WorkPoints[point].Pressure};
    };
    for (const PipeResult& result : PipeResults(record->settings, *record->results)) {
        const PipeRec& drawn = project.Pipes[result.number];
        const bool forward = drawn.StartPoint == result.from && drawn.EndPoint == result.to;
        const bool back = drawn.StartPoint == result.to && drawn.EndPoint == result.from;
        if (result.number > project.numtubo || (!forward && !back)) continue;
        pipes[result.number] = {.flow = forward ? result.flow : -result.flow,
                                .velocity = std::abs(result.velocity),
                                .lossPerMetre = std::abs(result.dropPerMetre),
                                .pressure = (pressure(result.from) + pressure(result.to)) / 2,
                                .flowGiven = result.flowGiven};
    }
    return pipes;
}

void AttachZoom(MDI& mdi, std::string_view item, void (PlantView::*zoom)()) {
    mdi.Menu().Attach(item, [&mdi, zoom] {
        auto* drawing = dynamic_cast<FrmCel*>(mdi.Windows().Find("FrmCel"));
        if (drawing != nullptr) (drawing->View().*zoom)();
    });
}

}  // namespace

void AttachViewCommands(MDI& mdi) {
    Editor& editor = mdi.State().editor;
    mdi.Menu().Attach(kNoLabels, [&editor] { editor.DataShown = false; });
    for (const LabelChoice& entry : kLabelChoices) {
        mdi.Menu().Attach(entry.item, [&editor, kind = entry.kind] {
            editor.labels = kind;
            editor.DataShown = true;
        });
    }
    for (const ColourChoice& entry : kColourChoices) {
        mdi.Menu().Attach(entry.item, [&editor, kind = entry.kind] { editor.colours = kind; });
    }
    AttachZoom(mdi, "ZoomIn", &PlantView::ZoomIn);
    AttachZoom(mdi, "ZoomOut", &PlantView::ZoomOut);
    AttachZoom(mdi, "ZoomFit", &PlantView::Fit);
}

void ShowView(Program& program) {
    Editor& editor = program.editor;
    program.shell.labelsItem = editor.DataShown ? ItemOf(editor.labels) : kNoLabels;
    program.shell.coloursItem = ItemOf(editor.colours);
    if (program.project.settings.Mode != WorkMode::Graphic) return;
    editor.resultsOld = ShowsOldResults(program);
    editor.limits = program.limits;
    editor.computed = ComputedPipes(program.project, RecordOf(program));
}

}  // namespace idrova
