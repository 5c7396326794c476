// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/kit/flow_arrow.h"

#include <QPainter>

namespace idrova {

namespace {

constexpr int kMargin = 24;
constexpr int kPointRadius = 5;
constexpr int kArrowHeight = 14;  ///< above the pipe
constexpr int kArrowHead = 7;

QString Description(const DirectionView& view) {
    if (!view.showsArrow) return "No flow direction";
    return view.direction == FlowDirection::From1To2 ? "Flow from point 1 to point 2"
                                                     : "Flow from point 2 to point 1";
}

}  // namespace

FlowArrow::FlowArrow() {
    setObjectName("FlowArrow");
    setAccessibleName(Description(view_));
}

void FlowArrow::Show(const DirectionView& view) {
    if (view == view_) return;
    view_ = view;
    setAccessibleName(Description(view));
    update();
}

void FlowArrow::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const int middle = height() / 2;
    const int left = kMargin;
    const int right = width() - kMargin;
    painter.setPen(QPen(palette().color(QPalette::WindowText), 3));
    painter.drawLine(left, middle, right, middle);
    painter.setBrush(palette().color(QPalette::WindowText));
    painter.drawEllipse(QPoint(left, middle), kPointRadius, kPointRadius);
    painter.drawEllipse(QPoint(right, middle), kPointRadius, kPointRadius);
    painter.drawText(QRect(left - 10, middle + 8, 20, 20), Qt::AlignCenter, "1");
    painter.drawText(QRect(right - 10, middle + 8, 20, 20), Qt::AlignCenter, "2");
    if (!view_.showsArrow) return;

    const int forward = view_.direction == FlowDirection::From1To2 ? 1 : -1;
    const QPoint tip(width() / 2 + forward * 40, middle - kArrowHeight);
    painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
    painter.drawLine(tip - QPoint(forward * 80, 0), tip);
    painter.drawLine(tip, tip + QPoint(-forward * kArrowHead, -kArrowHead));
    painter.drawLine(tip, tip + QPoint(-forward * kArrowHead, kArrowHead));
}

}  // namespace idrova
