// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/message_boxes.h"

namespace idrova {

/// Shows message boxes as modal windows over the active window. Return takes the first button;
/// Escape and closing take Cancel, No, or the only button.
class QtMessageBoxes final : public MessageBoxes {
  public:
    Answer Show(const MessageBox& box) override;
};

}  // namespace idrova
