// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/windows/frm_prob.h"

#include <QLabel>
#include <QListWidget>
#include <QVBoxLayout>

#include "ui/kit/controls.h"
#include "ui/kit/qt_text.h"
#include "ui/program.h"
#include "ui/program_selection.h"

namespace idrova {

FrmProb::FrmProb(Program& program, QWidget* parent)
    : QDockWidget("Idrova - Problems", parent),
      program_(program),
      caption_(Named(new QLabel, "ProblemsCaption")),
      problems_(Named(new QListWidget, "Problems")) {
    Named(this, "FrmProb");
    setAllowedAreas(Qt::BottomDockWidgetArea | Qt::TopDockWidgetArea);
    setFeatures(DockWidgetClosable);
    caption_->setTextFormat(Qt::PlainText);
    caption_->setBuddy(problems_);
    problems_->setAlternatingRowColors(true);
    problems_->setMinimumHeight(3 * problems_->fontMetrics().lineSpacing());
    auto* content = new QWidget;
    auto* column = new QVBoxLayout(content);
    column->setContentsMargins(8, 4, 8, 4);
    column->addWidget(caption_);
    column->addWidget(problems_);
    setWidget(content);
    hide();
    connect(problems_, &QListWidget::itemClicked, this, [this] { GoTo(problems_->currentRow()); });
    connect(problems_, &QListWidget::itemActivated, this,
            [this] { GoTo(problems_->currentRow()); });
}

void FrmProb::Open() {
    show();
    raise();
    ShowState();
}

void FrmProb::ShowState() {
    if (isHidden()) return;
    const ProblemView view =
        ShowProblems(program_.project, program_.table, RecordOf(program_), program_.limits);
    if (view == shown_) return;
    shown_ = view;
    caption_->setText(ToQt(view.caption));
    problems_->clear();
    for (const Note& note : view.notes) problems_->addItem(ToQt(note.text));
}

void FrmProb::GoTo(int line) {
    if (line < 0 || line >= static_cast<int>(shown_.notes.size())) return;
    const Note& note = shown_.notes[static_cast<std::size_t>(line)];
    const bool row = note.on == NoteOn::Row;
    SelectElement(program_,
                  row ? Element{NoteOn::Pipe, note.number} : Element{note.on, note.number});
    program_.changed();
}

}  // namespace idrova
