// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QGroupBox>

#include "ui/panel/panel_parts.h"

namespace idrova {

/// `Frame7` of the command panel: the flow rate of the selected pipe, given or computed.
class FlowFrame : public QGroupBox {
  public:
    explicit FlowFrame(PanelContext& context);

    void Show();

  private:
    void TypeVolumeFlow(std::string_view text);

    PanelContext& context_;
    KnownChoice* choice_;
    NumberBox* flowGiven_;
    NumberBox* volumeFlowGiven_;
    ComputedField* flowComputed_;
    ComputedField* volumeFlowComputed_;
    ComputedField* velocity_;
    ComputedField* dropPerMetre_;
};

}  // namespace idrova
