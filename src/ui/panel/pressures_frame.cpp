// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/panel/pressures_frame.h"

#include <QGridLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "ui/kit/controls.h"
#include "ui/kit/form_parts.h"
#include "ui/kit/qt_text.h"
#include "ui/program.h"

namespace idrova {

PressuresFrame::PressuresFrame(PanelContext& context)
    : QGroupBox("Pressures"),
      context_(context),
      start_(MakePoint({"Frame2", "Option1", "Text10", "Text1"}, PipeEnd::Start)),
      end_(MakePoint({"Frame5", "Option2", "Text9", "Text4"}, PipeEnd::End)) {
    Named(this, "Frame4");
    LayOut(start_);
    LayOut(end_);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(kFrameMargins);
    column->setSpacing(kRowSpacing);
    column->addWidget(start_.frame);
    column->addWidget(end_.frame);
}

PressuresFrame::PointBoxes PressuresFrame::MakePoint(const Names& names, PipeEnd end) {
    const auto choose = [this, end](bool known) {
        ChoosePressure(context_.program.project, context_.panel, end, known);
        context_.edited();
    };
    const auto type = [this, end](std::string_view text) {
        TypePressure(context_.program.project, context_.panel, end, text);
        context_.edited();
    };
    return {Named(new QGroupBox("P"), names.frame),
            new KnownChoice(names.option, choose),
            new NumberBox(names.given, type),
            new ComputedField(names.computed),
            {UnitLabel(), UnitLabel()}};
}

QLabel* PressuresFrame::UnitLabel() {
    QLabel* label = PlainLabel({});
    label->setObjectName(QString("LabelUnit_%1").arg(unitCount_++));
    return label;
}

void PressuresFrame::LayOut(const PointBoxes& point) {
    point.given->setAccessibleName("Given pressure");
    point.computed->setAccessibleName("Computed pressure");
    auto* grid = new QGridLayout(point.frame);
    grid->setContentsMargins(kFrameMargins);
    grid->setVerticalSpacing(kRowSpacing);
    grid->addWidget(point.option, 0, 0, 1, 4);
    grid->addWidget(PlainLabel("given"), 1, 0);
    grid->addWidget(PlainLabel("computed"), 1, 2);
    grid->addWidget(point.given, 2, 0);
    grid->addWidget(point.units[0], 2, 1);
    grid->addWidget(point.computed, 2, 2);
    grid->addWidget(point.units[1], 2, 3);
}

void PressuresFrame::Show() {
    ShowPoint(start_, context_.panel.start);
    ShowPoint(end_, context_.panel.end);
}

void PressuresFrame::ShowPoint(const PointBoxes& point, const PointPanel& shown) const {
    point.frame->setTitle(shown.caption.empty() ? QString("P") : ToQt(shown.caption));
    point.option->Show(shown.known);
    point.given->setEnabled(shown.known);
    point.given->Show(shown.given);
    point.computed->Show(shown.computed, context_.resultsOld);
    for (QLabel* unit : point.units) unit->setText(ToQt(context_.panel.unitLabel));
}

}  // namespace idrova
