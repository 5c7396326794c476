// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMargins>
#include <QWidget>
#include <functional>
#include <string>
#include <string_view>

#include "editor/pipe_panel.h"
#include "results/sizing_texts.h"
#include "ui/kit/coloured_field.h"

class QRadioButton;

namespace idrova {

struct Program;

/// In pixels, small: all frames are to be seen on a screen of 1080 lines.
constexpr int kRowSpacing = 3;
constexpr QMargins kFrameMargins(8, 3, 8, 4);

/// What the frames of the command panel share.
struct PanelContext {
    Program& program;
    /// A frame has changed the pipe, and `panel` with it: shows both wherever they are shown.
    std::function<void()> edited;
    PipePanel panel{};        ///< what the boxes hold
    SizingTexts sizing{};     ///< beside the computed flow
    bool resultsOld = false;  ///< what was computed is of a plant that has changed since
};

/// A box for a typed number.
class NumberBox : public SelectingField {
  public:
    /// `typed` is called with the whole text at every change that does not come from `Show`.
    NumberBox(const char* name, const std::function<void(std::string_view)>& typed);

    /// Undo and redo are the drawing's, not the box's.
    bool event(QEvent* event) override;

    /// Leaves the box, and the cursor in it, alone when it holds the text already.
    void Show(const std::string& text);
};

/// The option buttons "Unknown" and "Value known", `name`_0 and `name`_1.
class KnownChoice : public QWidget {
  public:
    KnownChoice(const char* name, const std::function<void(bool)>& chosen);

    void Show(bool known);

  private:
    QRadioButton* unknown_;
    QRadioButton* known_;
};

}  // namespace idrova
