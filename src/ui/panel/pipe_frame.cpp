// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/panel/pipe_frame.h"

#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QSignalBlocker>

#include "base/number_text.h"
#include "ui/kit/controls.h"
#include "ui/kit/fitting_picker.h"
#include "ui/kit/name_list.h"
#include "ui/kit/qt_text.h"
#include "ui/panel/flow_frame.h"
#include "ui/program.h"

namespace idrova {

PipeFrame::PipeFrame(PanelContext& context)
    : QGroupBox("Pipe"),
      context_(context),
      flowFrame_(new FlowFrame(context)),
      length_(EditBox("Text6", TypeLength)),
      sizes_(SizeList("Combo2")),
      innerSize_(EditBox("Text7", TypeInnerSize)),
      outerSize_(EditBox("Text8", TypeOuterSize)),
      lossSum_(EditBox("LossSum", TypeLossSum)),
      startHeight_(HeightBox("Text5", PipeEnd::Start)),
      endHeight_(HeightBox("Text11", PipeEnd::End)),
      nominalLabel_(Named(LabelFor(sizes_, "Diameter \""), "LabelNominal")),
      firstSideLabel_(Named(LabelFor(innerSize_, "Diameter [mm]"), "LabelSideA")),
      secondSideLabel_(Named(LabelFor(outerSize_, "b [mm]"), "LabelSideB")),
      startHeightLabel_(LabelFor(startHeight_, {})),
      endHeightLabel_(LabelFor(endHeight_, {})) {
    Named(this, "Frame3");
    OnChosen(*sizes_, [this](int position) {
        ChoosePipeSize(context_.program.project, context_.panel, position + 1);
        context_.edited();
    });
    auto* form = new QFormLayout(this);
    form->setContentsMargins(kFrameMargins);
    form->setVerticalSpacing(kRowSpacing);
    form->addRow(flowFrame_);
    form->addRow(LabelFor(length_, "Lenght [m]"), length_);
    form->addRow(nominalLabel_, sizes_);
    form->addRow(firstSideLabel_, innerSize_);
    form->addRow(secondSideLabel_, outerSize_);
    form->addRow(LabelFor(lossSum_, "ΣK of fittings"),
                 FittingRow(lossSum_, [this] { PickLosses(); }));
    form->addRow(startHeightLabel_, startHeight_);
    form->addRow(endHeightLabel_, endHeight_);
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
    flowFrame_->setEnabled(panel.OnlyPipe() != 0);
    flowFrame_->Show();
    length_->Show(panel.length);
    innerSize_->Show(panel.innerSize);
    outerSize_->Show(panel.outerSize);
    lossSum_->Show(panel.lossSum);
    startHeight_->Show(panel.start.height);
    endHeight_->Show(panel.end.height);
    startHeightLabel_->setText(ToQt(panel.start.heightLabel));
    endHeightLabel_->setText(ToQt(panel.end.heightLabel));
    const QSignalBlocker silent(sizes_);
    sizes_->setCurrentIndex(panel.nominalSize - 1);
    ShowSection();
}

void PipeFrame::PickLosses() {
    Program& program = context_.program;
    const auto picked =
        PickFittings(program.components.losses, ReadNumber(context_.panel.lossSum), this);
    if (!picked || *picked == 0) return;
    AddLosses(program.project, context_.panel, *picked);
    context_.edited();
}

void PipeFrame::ShowSection() {
    const SectionDisplay& display = context_.panel.section;
    sizes_->setVisible(display.nominalSizes);
    nominalLabel_->setVisible(display.nominalSizes);
    firstSideLabel_->setText(ToQt(display.firstSideLabel));
    outerSize_->setVisible(display.secondSide);
    secondSideLabel_->setVisible(display.secondSide);
    secondSideLabel_->setText(ToQt(display.secondSideLabel));
}

}  // namespace idrova
