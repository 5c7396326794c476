// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

#include "base/message_boxes.h"

namespace idrova {

/// Prints each message as "title: text" on one line and keeps it; questions are answered No.
class PrintedBoxes final : public MessageBoxes {
  public:
    explicit PrintedBoxes(std::ostream& err) : err_(err) {}

    Answer Show(const MessageBox& box) override;

    const std::vector<MessageBox>& Shown() const { return shown_; }

  private:
    std::ostream& err_;
    std::vector<MessageBox> shown_;
};

}  // namespace idrova
