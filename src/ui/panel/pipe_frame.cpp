// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/panel/pipe_frame.h"

#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QSignalBlocker>

#include "ui/kit/controls.h"
#include "ui/kit/name_list.h"
#include "ui/kit/qt_text.h"
#include "ui/panel/flow_frame.h"
#include "ui/program.h"

namespace idrova {

PipeFrame::PipeFrame(PanelContext& context)
    : QGroupBox("Pipe"),
      context_(context),
      Frame7(new FlowFrame(context)),
      Text6(EditBox("Text6", TypeLength)),
      Combo2(SizeList("Combo2")),
      Text7(EditBox("Text7", TypeInnerSize)),
      Text8(EditBox("Text8", TypeOuterSize)),
      Text5(HeightBox("Text5", PipeEnd::Start)),
      Text11(HeightBox("Text11", PipeEnd::End)),
      nominalLabel_(Named(LabelFor(Combo2, "Diameter \""), "LabelNominal")),
      firstSideLabel_(Named(LabelFor(Text7, "Diameter [mm]"), "LabelSideA")),
      secondSideLabel_(Named(LabelFor(Text8, "b [mm]"), "LabelSideB")),
      startHeightLabel_(LabelFor(Text5, "Z1 [m]")),
      endHeightLabel_(LabelFor(Text11, "Z2 [m]")) {
    Named(this, "Frame3");
    OnChosen(*Combo2, [this](int position) {
        ChoosePipeSize(context_.program.project, context_.panel, position + 1);
        context_.edited();
    });
    auto* form = new QFormLayout(this);
    form->addRow(Frame7);
    form->addRow(LabelFor(Text6, "Lenght [m]"), Text6);
    form->addRow(nominalLabel_, Combo2);
    form->addRow(firstSideLabel_, Text7);
    form->addRow(secondSideLabel_, Text8);
    form->addRow(startHeightLabel_, Text5);
    form->addRow(endHeightLabel_, Text11);
}

NumberBox* PipeFrame::EditBox(const char* name, const Edit& edit) {
    auto* box = new NumberBox(name, [this, edit](std::string_view text) {
        edit(context_.program.project, context_.panel, text);
        context_.edited();
    });
    connect(box, &QLineEdit::editingFinished, this, [this] {
        LeaveBox(context_.program.project, context_.panel);
        context_.edited();
    });
    return box;
}

NumberBox* PipeFrame::HeightBox(const char* name, PipeEnd end) {
    return EditBox(name, [end](Project& project, PipePanel& panel, std::string_view text) {
        TypeHeight(project, panel, end, text);
    });
}

void PipeFrame::Show() {
    const PipePanel& panel = context_.panel;
    setTitle(ToQt(panel.caption));
    Frame7->Show();
    Text6->Show(panel.length);
    Text7->Show(panel.innerSize);
    Text8->Show(panel.outerSize);
    Text5->Show(panel.start.height);
    Text11->Show(panel.end.height);
    if (panel.pipe != 0) {
        startHeightLabel_->setText(ToQt(panel.start.heightLabel));
        endHeightLabel_->setText(ToQt(panel.end.heightLabel));
    }
    const QSignalBlocker silent(Combo2);
    Combo2->setCurrentIndex(panel.nominalSize - 1);
    ShowSection();
}

void PipeFrame::ShowSection() {
    const SectionDisplay& display = context_.panel.section;
    Combo2->setVisible(display.nominalSizes);
    nominalLabel_->setVisible(display.nominalSizes);
    firstSideLabel_->setText(ToQt(display.firstSideLabel));
    Text8->setVisible(display.secondSide);
    secondSideLabel_->setVisible(display.secondSide);
    secondSideLabel_->setText(ToQt(display.secondSideLabel));
}

}  // namespace idrova
