// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/frame/status_line.h"

#include <QLabel>
#include <QStatusBar>
#include <QStyle>
#include <QToolButton>

#include "shell/outcome_notes.h"
#include "ui/kit/controls.h"
#include "ui/kit/qt_text.h"

namespace idrova {

namespace {

/// By `OutcomeGround`.
constexpr const char* kGrounds[] = {
    "", "QToolButton { background-color: #ffbf00; color: black; padding: 2px 6px; }",
    "QToolButton { background-color: #b3261e; color: white; font-weight: bold; padding: 2px 6px; "
    "}",
    "QToolButton { background-color: #b0b0b0; color: black; padding: 2px 6px; }"};

QString ModeText(WorkMode mode) {
    switch (mode) {
        case WorkMode::Table:
            return "Table";
        case WorkMode::SinglePipe:
            return "Single pipe";
        case WorkMode::Graphic:
            break;
    }
    return "Graphic";
}

QString FluidText(const Settings& settings) {
    if (!settings.FluidName.empty()) return "Fluid: " + ToQt(settings.FluidName);
    return settings.FluidDensity > 0 ? "Fluid without a name" : "No fluid";
}

}  // namespace

StatusLine::StatusLine(QStatusBar& bar, const std::function<void()>& openProblems)
    : bar_(bar),
      mode_(Named(new QLabel, "StatusMode")),
      fluid_(Named(new QLabel, "StatusFluid")),
      outcomeButton_(Named(new QToolButton, "StatusOutcome")) {
    fluid_->setTextFormat(Qt::PlainText);
    QObject::connect(&bar, &QStatusBar::messageChanged, mode_, [this](const QString& shown) {
        if (shown.isEmpty() && !said_.isEmpty()) bar_.showMessage(said_);
    });
    for (QLabel* label : {fluid_, mode_}) label->setContentsMargins(8, 0, 8, 0);
    outcomeButton_->setAutoRaise(true);
    outcomeButton_->hide();
    QObject::connect(outcomeButton_, &QToolButton::clicked, outcomeButton_, openProblems);
    bar.addPermanentWidget(outcomeButton_);
    bar.addPermanentWidget(fluid_);
    bar.addPermanentWidget(mode_);
}

void StatusLine::Say(const std::string& words) {
    said_ = ToQt(words);
    bar_.showMessage(said_);
}

void StatusLine::ShowSettings(const Settings& settings) {
    mode_->setText("Mode: " + ModeText(settings.Mode));
    fluid_->setText(FluidText(settings));
}

void StatusLine::HideOutcome() {
    outcomeButton_->hide();
}

void StatusLine::ShowOutcome(const Outcome& outcome, ResultAge age) {
    const OutcomeView view = idrova::ShowOutcome(outcome, age);
    outcomeButton_->setText(ToQt(view.text));
    outcomeButton_->setToolTip(ToQt(view.tip));
    const QString style = kGrounds[static_cast<int>(view.ground)];
    if (outcomeButton_->styleSheet() != style) outcomeButton_->setStyleSheet(style);
    outcomeButton_->setVisible(!outcomeButton_->text().isEmpty());
}

}  // namespace idrova
