// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>
#include <utility>

namespace idrova {

enum class BoxIcon { None, Information, Exclamation, Critical, Question };
enum class BoxButtons { Ok, OkCancel, YesNo };
enum class Answer { Ok, Cancel, Yes, No };

/// Separates the lines of a message.
constexpr char kLineBreak = '\r';

/// A message whose words never change: the form in which each folder lists its messages.
struct FixedMessage {
    std::string_view text;
    std::string_view title;
    BoxIcon icon = BoxIcon::Critical;
    BoxButtons buttons = BoxButtons::Ok;
};

/// A message box as a value: what it says and which answers it takes.
struct MessageBox {
    std::string text;
    std::string title;
    BoxIcon icon = BoxIcon::Critical;
    BoxButtons buttons = BoxButtons::Ok;

    MessageBox(std::string boxText, std::string_view boxTitle, BoxIcon boxIcon = BoxIcon::Critical,
               BoxButtons boxButtons = BoxButtons::Ok)
        : text(std::move(boxText)), title(boxTitle), icon(boxIcon), buttons(boxButtons) {}
    MessageBox(const FixedMessage& fixed)  // NOLINT(google-explicit-constructor)
        : text(fixed.text), title(fixed.title), icon(fixed.icon), buttons(fixed.buttons) {}

    bool operator==(const MessageBox&) const = default;
};

/// The one way in which the logic asks and tells. Windows show the box, idrova-calc prints it,
/// tests script the answers.
class MessageBoxes {
  public:
    virtual ~MessageBoxes() = default;

    /// Blocks until answered; the answer is one of the box's buttons.
    virtual Answer Show(const MessageBox& box) = 0;

  protected:
    MessageBoxes() = default;
    MessageBoxes(const MessageBoxes&) = default;
    MessageBoxes& operator=(const MessageBoxes&) = default;
};

}  // namespace idrova
