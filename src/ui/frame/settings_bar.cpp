// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/frame/settings_bar.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

#include "base/assertion.h"
#include "ui/kit/controls.h"
#include "ui/kit/form_parts.h"
#include "ui/kit/qt_text.h"
#include "ui/program.h"

namespace idrova {

SettingsBar::SettingsBar(Program& program)
    : program_(program),
      offer_(Named(PlainLabel({}), "SettingsOffer")),
      use_(CommandButton("SettingsUse", "Use", [this] { Use(); })) {
    Named(this, "SettingsBar");
    setStyleSheet("#SettingsBar { background-color: #ffe9a8; } #SettingsOffer { color: black; }");
    offer_->setWordWrap(true);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(8, 4, 8, 4);
    row->addWidget(offer_, 1);
    row->addWidget(use_);
    row->addWidget(CommandButton("SettingsKeep", "Keep", [this] { Keep(); }));
    use_->setToolTip("Compute with the settings of the project");
    hide();
}

void SettingsBar::ShowState() {
    const std::string words = SettingsOffer(program_.offered, PresentSettings(program_));
    offer_->setText(ToQt(words));
    use_->setVisible(program_.offered && *program_.offered);
    setVisible(!words.empty());
}

void SettingsBar::Use() {
    Assert(program_.offered && *program_.offered);
    const StoredSettings stored = **program_.offered;
    program_.offered.reset();
    UseSettings(stored, program_.project.settings);
    program_.shell.roughnessItem = stored.roughnessItem;
    program_.limits = stored.limits;
    FillTable(program_.project, program_.table);  // its pressures have a unit
    program_.changed();
}

void SettingsBar::Keep() {
    program_.offered.reset();
    program_.changed();
}

}  // namespace idrova
