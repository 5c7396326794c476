// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/panel/directions_frame.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QRadioButton>
#include <QSignalBlocker>
#include <array>

#include "ui/kit/controls.h"
#include "ui/kit/qt_text.h"
#include "ui/program.h"

namespace idrova {

DirectionArrow::DirectionArrow() {
    setMinimumSize(60, 16);
}

void DirectionArrow::Show(bool backwards) {
    backwards_ = backwards;
    update();
}

void DirectionArrow::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor colour =
        palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::WindowText);
    painter.setPen(QPen(colour, 1.5));
    const double middle = height() / 2.0;
    const double tip = backwards_ ? 4 : width() - 4;
    const double back = backwards_ ? 12 : -12;
    painter.drawLine(QPointF(4, middle), QPointF(width() - 4, middle));
    painter.drawLine(QPointF(tip, middle), QPointF(tip + back, middle - 5));
    painter.drawLine(QPointF(tip, middle), QPointF(tip + back, middle + 5));
}

DirectionsFrame::DirectionsFrame(PanelContext& context)
    : QGroupBox("Directions"),
      context_(context),
      fromStart_(Option("Option3", PipeEnd::Start)),
      fromEnd_(Option("Option4", PipeEnd::End)),
      arrow_(new DirectionArrow) {
    Named(this, "Frame8");
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(kFrameMargins);
    row->addWidget(fromStart_);
    row->addWidget(arrow_, 1);
    row->addWidget(fromEnd_);
}

QRadioButton* DirectionsFrame::Option(const char* name, PipeEnd end) {
    auto* option = Named(new QRadioButton("P"), name);
    connect(option, &QRadioButton::toggled, this, [this, end](bool chosen) {
        if (!chosen) return;
        ChooseDirection(context_.program.project, context_.panel, end);
        context_.edited();
    });
    return option;
}

void DirectionsFrame::Show() {
    const PipePanel& panel = context_.panel;
    const std::array silent{QSignalBlocker(fromStart_), QSignalBlocker(fromEnd_)};
    fromStart_->setText(panel.OnlyPipe() == 0 ? QString("P") : ToQt(panel.start.caption));
    fromEnd_->setText(panel.OnlyPipe() == 0 ? QString("P") : ToQt(panel.end.caption));
    (panel.end.reference ? fromEnd_ : fromStart_)->setChecked(true);
    arrow_->Show(panel.end.reference);
}

}  // namespace idrova
