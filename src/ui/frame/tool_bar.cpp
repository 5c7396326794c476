// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/frame/tool_bar.h"

#include <QAction>
#include <QMenuBar>

#include "ui/kit/controls.h"
#include "ui/kit/tool_icon.h"

namespace idrova {

namespace {

constexpr int kIconSide = 16;  ///< low, so that the command panel need not scroll

struct Tool {
    const char* item = nullptr;  ///< of the menu; none for a separator
    const char* themeIcon = "";
    const char* strokes = "";
};

constexpr Tool kBefore[] = {
    {"Nuovo", "document-new", "5,3 14,3 19,8 19,21 5,21 5,3;14,3 14,8 19,8"},
    {"Apri", "document-open", "3,19 3,6 9,6 11,8 20,8 20,10;3,19 6,10 22,10 19,19 3,19"},
    {"Salva", "document-save",
     "4,4 17,4 20,7 20,20 4,20 4,4;8,4 8,9 15,9 15,4;7,20 7,13 17,13 17,20"},
    {},
    {"Annulla", "edit-undo", "9,5 4,10 9,15;4,10 15,10 19,13 19,16 16,19 10,19"},
    {"Ripeti", "edit-redo", "15,5 20,10 15,15;20,10 9,10 5,13 5,16 8,19 14,19"},
    {},
};
constexpr Tool kCompute = {"Calcola", "system-run", "7,4 19,12 7,20 7,4"};
constexpr Tool kAfter[] = {
    {"Risultati", "x-office-spreadsheet", "4,4 20,4 20,20 4,20 4,4;4,9 20,9;4,14 20,14;10,4 10,20"},
    {},
    {"ZoomIn", "zoom-in",
     "10,4 14,6 16,10 14,14 10,16 6,14 4,10 6,6 10,4;14,14 20,20;10,7 10,13;7,10 13,10"},
    {"ZoomOut", "zoom-out",
     "10,4 14,6 16,10 14,14 10,16 6,14 4,10 6,6 10,4;14,14 20,20;7,10 13,10"},
    {"ZoomFit", "zoom-fit-best", "4,9 4,4 9,4;15,4 20,4 20,9;20,15 20,20 15,20;9,20 4,20 4,15"},
};

QIcon IconOf(const Tool& tool) {
    return ToolIcon(tool.themeIcon, tool.strokes);
}

}  // namespace

ToolBar::ToolBar(const QMenuBar& menu, const std::function<void()>& compute)
    : QToolBar("Tool bar") {
    Named(this, "ToolBar");
    setMovable(false);
    setIconSize({kIconSide, kIconSide});
    for (const Tool& tool : kBefore) AddItem(menu, tool.item, IconOf(tool));
    compute_ = Named(addAction(IconOf(kCompute), "Compute"), kCompute.item);
    compute_->setToolTip("Compute (F5)");
    connect(compute_, &QAction::triggered, this, [compute] { compute(); });
    for (const Tool& tool : kAfter) AddItem(menu, tool.item, IconOf(tool));
}

void ToolBar::AddItem(const QMenuBar& menu, const char* name, const QIcon& icon) {
    if (name == nullptr) {
        addSeparator();
        return;
    }
    auto* action = menu.findChild<QAction*>(name);
    if (action == nullptr) return;
    action->setIcon(icon);
    action->setIconVisibleInMenu(false);
    const QString key = action->shortcut().toString(QKeySequence::NativeText);
    const QString caption = action->text().remove('&');
    action->setToolTip(key.isEmpty() ? caption : caption + " (" + key + ")");
    addAction(action);
}

void ToolBar::ShowState(bool mayCompute) {
    compute_->setEnabled(mayCompute);
}

}  // namespace idrova
