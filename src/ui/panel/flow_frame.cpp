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
      Option6(new KnownChoice("Option6",
                              [this](bool known) {
                                  ChooseFlow(context_.program.project, context_.panel, known);
                                  context_.edited();
                              })),
      Text12(new NumberBox("Text12",
                           [this](std::string_view text) {
                               TypeKgPerHour(context_.program.project, context_.panel, text);
                               context_.edited();
                           })),
      Text13(new NumberBox("Text13", [this](std::string_view text) { Text13_Change(text); })),
      Text2(ResultBox("Text2")),
      Text3(ResultBox("Text3")) {
    Named(this, "Frame7");
    auto* rows = new QGridLayout(this);
    rows->addWidget(Option6, 0, 0, 1, 3);
    rows->addWidget(PlainLabel("given"), 1, 1);
    rows->addWidget(PlainLabel("computed"), 1, 2);
    rows->addWidget(LabelFor(Text12, "[kg/h]"), 2, 0);
    rows->addWidget(Text12, 2, 1);
    rows->addWidget(Text2, 2, 2);
    rows->addWidget(LabelFor(Text13, "[mc/h]"), 3, 0);
    rows->addWidget(Text13, 3, 1);
    rows->addWidget(Text3, 3, 2);
    Text12->setAccessibleName("Given flow rate [kg/h]");
    Text13->setAccessibleName("Given flow rate [mc/h]");
    Text2->setAccessibleName("Computed flow rate [kg/h]");
    Text3->setAccessibleName("Computed flow rate [mc/h]");
}

void FlowFrame::Show() {
    const PipePanel& panel = context_.panel;
    Option6->Show(panel.flowKnown);
    for (NumberBox* box : {Text12, Text13}) box->setEnabled(panel.flowKnown);
    Text12->Show(panel.kgPerHour);
    Text13->Show(panel.cubicMetresPerHour);
    Text2->Show(panel.computedKgPerHour);
    Text3->Show(panel.computedCubicMetresPerHour);
}

void FlowFrame::Text13_Change(std::string_view text) {
    Program& program = context_.program;
    if (!TypeCubicMetresPerHour(program.project, context_.panel, text, program.boxes)) {
        Text12->setFocus();
    }
    context_.edited();
}

}  // namespace idrova
