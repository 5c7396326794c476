// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/panel/flow_frame.h"

#include <QGridLayout>

#include "editor/panel_edits.h"
#include "ui/kit/controls.h"
#include "ui/kit/form_parts.h"
#include "ui/program.h"

namespace idrova {

FlowFrame::FlowFrame(PanelContext& context)
    : QGroupBox("Flow rate"),
      context_(context),
      choice_(new KnownChoice("Option6",
                              [this](bool known) {
                                  ChooseFlow(context_.program.project, context_.panel, known);
                                  context_.edited();
                              })),
      flowGiven_(new NumberBox("Text12",
                               [this](std::string_view text) {
                                   TypeKgPerHour(context_.program.project, context_.panel, text);
                                   context_.edited();
                               })),
      volumeFlowGiven_(
          new NumberBox("Text13", [this](std::string_view text) { TypeVolumeFlow(text); })),
      flowComputed_(new ComputedField("Text2")),
      volumeFlowComputed_(new ComputedField("Text3")),
      velocity_(new ComputedField("Velocity")),
      dropPerMetre_(new ComputedField("DropPerMetre")) {
    Named(this, "Frame7");
    auto* rows = new QGridLayout(this);
    rows->setContentsMargins(kFrameMargins);
    rows->setVerticalSpacing(kRowSpacing);
    rows->addWidget(choice_, 0, 0, 1, 3);
    rows->addWidget(PlainLabel("given"), 1, 1);
    rows->addWidget(PlainLabel("computed"), 1, 2);
    rows->addWidget(LabelFor(flowGiven_, "[kg/h]"), 2, 0);
    rows->addWidget(flowGiven_, 2, 1);
    rows->addWidget(flowComputed_, 2, 2);
    rows->addWidget(LabelFor(volumeFlowGiven_, "[mc/h]"), 3, 0);
    rows->addWidget(volumeFlowGiven_, 3, 1);
    rows->addWidget(volumeFlowComputed_, 3, 2);
    rows->addWidget(LabelFor(velocity_, "velocity [m/s]"), 4, 0, 1, 2);
    rows->addWidget(velocity_, 4, 2);
    rows->addWidget(LabelFor(dropPerMetre_, "losses [Pa/m]"), 5, 0, 1, 2);
    rows->addWidget(dropPerMetre_, 5, 2);
    flowGiven_->setAccessibleName("Given flow rate [kg/h]");
    volumeFlowGiven_->setAccessibleName("Given flow rate [mc/h]");
    flowComputed_->setAccessibleName("Computed flow rate [kg/h]");
    volumeFlowComputed_->setAccessibleName("Computed flow rate [mc/h]");
}

void FlowFrame::Show() {
    const PipePanel& panel = context_.panel;
    choice_->Show(panel.flowKnown);
    for (NumberBox* box : {flowGiven_, volumeFlowGiven_}) box->setEnabled(panel.flowKnown);
    flowGiven_->Show(panel.kgPerHour);
    volumeFlowGiven_->Show(panel.cubicMetresPerHour);
    flowComputed_->Show(panel.computedKgPerHour, context_.resultsOld);
    volumeFlowComputed_->Show(panel.computedCubicMetresPerHour, context_.resultsOld);
    velocity_->Show(context_.sizing.velocity, context_.resultsOld);
    dropPerMetre_->Show(context_.sizing.dropPerMetre, context_.resultsOld);
}

void FlowFrame::TypeVolumeFlow(std::string_view text) {
    Program& program = context_.program;
    if (!TypeCubicMetresPerHour(program.project, context_.panel, text, program.boxes)) {
        flowGiven_->setFocus();
    }
    context_.edited();
}

}  // namespace idrova
