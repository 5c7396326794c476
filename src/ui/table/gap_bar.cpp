// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/table/gap_bar.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

#include "ui/kit/controls.h"
#include "ui/kit/form_parts.h"
#include "ui/kit/qt_text.h"
#include "ui/table/table_model.h"

namespace idrova {

GapBar::GapBar(TableModel& model)
    : text_(Named(PlainLabel({}), "LabelGap")),
      closeUp_(CommandButton("CommandCloseUp", "&Close up", [&model] { model.CloseUp(); })) {
    text_->setWordWrap(true);
    // The ground that the status bar gives to notes.
    setObjectName("GapBar");
    setStyleSheet("#GapBar { background-color: #ffbf00; } #LabelGap { color: black; }");
    auto* row = new QHBoxLayout(this);
    row->addWidget(text_, 1);
    row->addWidget(closeUp_);
    hide();
}

void GapBar::ShowGap(const GapNote& note) {
    text_->setText(ToQt(note.text));
    closeUp_->setVisible(note.canCloseUp);
    setVisible(!note.text.empty());
}

}  // namespace idrova
