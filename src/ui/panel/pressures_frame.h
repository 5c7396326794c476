// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QGroupBox>
#include <array>

#include "editor/panel_edits.h"
#include "ui/panel/panel_parts.h"

class QLabel;

namespace idrova {

/// `Frame4` of the command panel: the pressures of the selected pipe's two points.
class PressuresFrame : public QGroupBox {
  public:
    explicit PressuresFrame(PanelContext& context);

    void Show();

  private:
    /// Names of one point's controls.
    struct Names {
        const char* frame;
        const char* option;
        const char* given;
        const char* computed;
    };
    struct PointBoxes {
        QGroupBox* frame;
        KnownChoice* option;
        NumberBox* given;
        ComputedField* computed;
        std::array<QLabel*, 2> units;
    };

    PointBoxes MakePoint(const Names& names, PipeEnd end);
    QLabel* UnitLabel();
    static void LayOut(const PointBoxes& point);
    void ShowPoint(const PointBoxes& point, const PointPanel& shown) const;

    PanelContext& context_;
    int unitCount_ = 0;
    PointBoxes start_;  ///< `Frame2`
    PointBoxes end_;    ///< `Frame5`
};

}  // namespace idrova
