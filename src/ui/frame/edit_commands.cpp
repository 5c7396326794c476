// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/frame/edit_commands.h"

#include <QInputDialog>

#include "editor/find_element.h"
#include "editor/messages.h"
#include "ui/frame/mdi.h"
#include "ui/frame/menu_bar.h"
#include "ui/kit/qt_text.h"
#include "ui/program.h"

namespace idrova {

namespace {

void Find(MDI& mdi) {
    Program& program = mdi.State();
    bool isGiven = false;
    const QString text = QInputDialog::getText(
        &mdi, ToQt(kNothingFound.title),
        "Number of a pipe, or P and the number of a point:", QLineEdit::Normal, {}, &isGiven);
    if (!isGiven) return;
    if (!FindElement(program.project, program.editor, FromQt(text.trimmed()))) {
        program.boxes.Show(kNothingFound);
    }
}

}  // namespace

void AttachEditCommands(MDI& mdi) {
    Program& program = mdi.State();
    const auto attach = [&](const char* item, void (EditHistory::*step)(Project&, Editor&)) {
        mdi.Menu().Attach(item, [&program, step] {
            (program.history.*step)(program.project, program.editor);
            const auto record = program.records.find(WorkMode::Graphic);
            if (record != program.records.end()) TurnFlowsWith(program.project, record->second);
        });
    };
    attach("Annulla", &EditHistory::Undo);
    attach("Ripeti", &EditHistory::Redo);
    mdi.Menu().Attach("Trova", [&mdi] { Find(mdi); });
}

void ShowSteps(MDI& mdi) {
    Program& program = mdi.State();
    program.history.Note(program.project, program.editor);
    const bool isDrawing = program.project.settings.Mode == WorkMode::Graphic;
    const auto show = [&](const char* item, const QString& caption, const std::string& step) {
        const bool named = isDrawing && !step.empty();
        mdi.Menu().ShowItem(item, named ? caption + " " + ToQt(step) : caption, named);
    };
    show("Annulla", "&Undo", program.history.UndoName());
    show("Ripeti", "&Redo", program.history.RedoName());
    mdi.Menu().ShowItem("Trova", "&Find pipe or point", isDrawing);
}

}  // namespace idrova
