// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QGroupBox>

#include "editor/panel_edits.h"
#include "ui/panel/panel_parts.h"

class QComboBox;
class QLabel;

namespace idrova {

class FlowFrame;

/// `Frame3` of the command panel: flow rate, length, section and heights of the selected pipe.
class PipeFrame : public QGroupBox {
  public:
    explicit PipeFrame(PanelContext& context);

    /// Circular: nominal size and diameter. Rectangular: the sides a and b.
    void Show();

  private:
    using Edit = std::function<void(Project&, PipePanel&, std::string_view)>;
    NumberBox* EditBox(const char* name, const Edit& edit);
    NumberBox* HeightBox(const char* name, PipeEnd end);
    void ShowSection();
    void PickLosses();

    PanelContext& context_;
    FlowFrame* flowFrame_;
    NumberBox* length_;
    QComboBox* sizes_;
    NumberBox* innerSize_;
    NumberBox* outerSize_;
    NumberBox* lossSum_;
    NumberBox* startHeight_;
    NumberBox* endHeight_;
    QLabel* nominalLabel_;
    QLabel* firstSideLabel_;
    QLabel* secondSideLabel_;
    QLabel* startHeightLabel_;
    QLabel* endHeightLabel_;
};

}  // namespace idrova
