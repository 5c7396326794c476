// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/frame/edit_commands.h"

#include "ui/frame/mdi.h"
#include "ui/frame/menu_bar.h"
#include "ui/kit/qt_text.h"
#include "ui/program.h"

namespace idrova {

void AttachEditCommands(MDI& mdi) {
    Program& program = mdi.State();
    mdi.Menu().Attach("Annulla",
                      [&program] { program.history.Undo(program.project, program.editor); });
    mdi.Menu().Attach("Ripeti",
                      [&program] { program.history.Redo(program.project, program.editor); });
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
}

}  // namespace idrova
