// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/frame/edit_commands.h"

#include <QInputDialog>

#include "editor/find_element.h"
#include "editor/messages.h"
#include "shell/run_command.h"
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

bool IsTable(const Program& program) {
    return program.project.settings.Mode == WorkMode::Table;
}

struct StepNames {
    QString undo, redo;  ///< empty when there is none
};

StepNames NamesOf(Program& program) {
    switch (program.project.settings.Mode) {
        case WorkMode::Graphic:
            return {ToQt(program.history.UndoName()), ToQt(program.history.RedoName())};
        case WorkMode::Table:
            return {program.tableModel.Undo().undoText(), program.tableModel.Undo().redoText()};
        case WorkMode::SinglePipe:
            break;
    }
    return {};
}

}  // namespace

void AttachEditCommands(MDI& mdi) {
    Program& program = mdi.State();
    const auto attach = [&](const char* item, void (EditHistory::*step)(Project&, Editor&),
                            void (QUndoStack::*tableStep)()) {
        mdi.Menu().Attach(item, [&program, step, tableStep] {
            if (IsTable(program)) return (program.tableModel.Undo().*tableStep)();
            (program.history.*step)(program.project, program.editor);
            const auto record = program.records.find(WorkMode::Graphic);
            if (record == program.records.end()) return;
            TurnFlowsWith(program.project, record->second);
            RestoreResults(record->second, program.project);
        });
    };
    attach("Annulla", &EditHistory::Undo, &QUndoStack::undo);
    attach("Ripeti", &EditHistory::Redo, &QUndoStack::redo);
    mdi.Menu().Attach("Trova", [&mdi] { Find(mdi); });
}

void ShowSteps(MDI& mdi) {
    Program& program = mdi.State();
    program.history.Note(program.project, program.editor);
    const auto show = [&](const char* item, const QString& caption, const QString& step) {
        mdi.Menu().ShowItem(item, step.isEmpty() ? caption : caption + " " + step, !step.isEmpty());
    };
    const StepNames names = NamesOf(program);
    show("Annulla", "&Undo", names.undo);
    show("Ripeti", "&Redo", names.redo);
    const bool isDrawing = program.project.settings.Mode == WorkMode::Graphic;
    mdi.Menu().ShowItem("Trova", "&Find pipe or point", isDrawing);
}

}  // namespace idrova
