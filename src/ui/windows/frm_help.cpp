// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/windows/frm_help.h"

#include <QGridLayout>
#include <QLabel>

#include "ui/kit/controls.h"
#include "ui/kit/qt_text.h"
#include "ui/program.h"

namespace idrova {

namespace {

constexpr std::array<const char*, 4> kNames = {"Label1", "Label2", "Label3", "Label4"};

}  // namespace

FrmHelp::FrmHelp(Program& program, QWidget* parent)
    : QDockWidget("Idrova - Help", parent), program_(program) {
    Named(this, "FrmHelp");
    setAllowedAreas(Qt::BottomDockWidgetArea | Qt::TopDockWidgetArea);
    setFeatures(DockWidgetClosable);
    auto* content = new QWidget;
    auto* grid = new QGridLayout(content);
    grid->setContentsMargins(8, 4, 8, 4);
    grid->setColumnStretch(1, 1);
    for (std::size_t i = 0; i < lines_.size(); ++i) {
        lines_[i] = Named(new QLabel, kNames[i]);
        lines_[i]->setTextFormat(Qt::PlainText);
        lines_[i]->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
        grid->addWidget(lines_[i], static_cast<int>(i) / 2, static_cast<int>(i) % 2);
    }
    for (const std::size_t action : {0U, 2U}) {
        lines_[action]->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    }
    setWidget(content);
}

void FrmHelp::ShowState() {
    const WorkMode mode = program_.project.settings.Mode;
    const auto lines = mode == WorkMode::Graphic ? HintLines(program_.editor) : ModeHints(mode);
    for (std::size_t i = 0; i < lines_.size(); ++i) lines_[i]->setText(ToQt(lines[i]));
    setVisible(program_.shell.HintsShown);
}

void FrmHelp::closeEvent(QCloseEvent* event) {
    QDockWidget::closeEvent(event);
    program_.shell.HintsShown = false;
    program_.changed();
}

}  // namespace idrova
