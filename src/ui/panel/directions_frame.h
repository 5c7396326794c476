// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QGroupBox>

#include "editor/panel_edits.h"
#include "ui/panel/panel_parts.h"

class QRadioButton;

namespace idrova {

/// The arrow between the two options of `DirectionsFrame`.
class DirectionArrow : public QWidget {
  public:
    DirectionArrow();

    void Show(bool backwards);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    bool backwards_ = false;
};

/// `Frame8` of the command panel: the point from which the selected pipe's flow is counted.
class DirectionsFrame : public QGroupBox {
  public:
    explicit DirectionsFrame(PanelContext& context);

    void Show();

  private:
    QRadioButton* Option(const char* name, PipeEnd end);

    PanelContext& context_;
    QRadioButton* fromStart_;
    QRadioButton* fromEnd_;
    DirectionArrow* arrow_;
};

}  // namespace idrova
