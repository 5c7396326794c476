// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/windows/frm_ava.h"

#include <QFormLayout>
#include <QLabel>
#include <QProgressBar>
#include <QScreen>
#include <algorithm>
#include <cmath>

#include "ui/kit/controls.h"

namespace idrova {

namespace {

constexpr int kWidth = 360;

/// Centre of the screen, kept so that all of `size` stays inside `parent`.
QRect CentredOnScreen(const QWidget& parent, QSize size) {
    QRect place({}, size);
    place.moveCenter(parent.mapFromGlobal(parent.screen()->geometry().center()));
    place.moveRight(std::min(place.right(), parent.width() - 1));
    place.moveBottom(std::min(place.bottom(), parent.height() - 1));
    place.moveTopLeft({std::max(place.x(), 0), std::max(place.y(), 0)});
    return place;
}

}  // namespace

FrmAva::FrmAva(QWidget* mainWindow)
    : QFrame(mainWindow),
      closeness_(Named(new QProgressBar, "ProgressBar1")),
      passes_(Named(new QProgressBar, "ProgressBar2")) {
    Named(this, "FrmAva");
    setFrameStyle(QFrame::Panel | QFrame::Raised);
    setLineWidth(2);
    setAutoFillBackground(true);
    auto* form = new QFormLayout(this);
    form->setContentsMargins(16, 16, 16, 16);
    form->addRow(LabelFor(closeness_, "Closeness"), closeness_);
    form->addRow(LabelFor(passes_, "Passes"), passes_);
    setGeometry(CentredOnScreen(*mainWindow, {kWidth, sizeHint().height()}));
    raise();
    show();
}

void FrmAva::ShowProgress(double closeness, double passes) {
    closeness_->setValue(static_cast<int>(std::lround(closeness)));
    passes_->setValue(static_cast<int>(std::lround(passes)));
    repaint();
}

}  // namespace idrova
