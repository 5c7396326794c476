// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

#include "hydraulics/single_pipe.h"

namespace idrova {

/// The pipe between its two points, with the arrow of the flow drawn along it.
class FlowArrow : public QWidget {
  public:
    FlowArrow();

    void Show(const DirectionView& view);

    QSize sizeHint() const override { return {360, 64}; }
    QSize minimumSizeHint() const override { return {160, 64}; }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    DirectionView view_;
};

}  // namespace idrova
