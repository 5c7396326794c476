// SPDX-License-Identifier: GPL-3.0-or-later
#include "calc/printed_boxes.h"

#include <algorithm>
#include <ostream>

namespace idrova {

Answer PrintedBoxes::Show(const MessageBox& box) {
    shown_.push_back(box);
    std::string text = box.text;
    std::ranges::replace(text, kLineBreak, ' ');
    err_ << box.title << ": " << text << '\n';
    switch (box.buttons) {
        case BoxButtons::Ok:
            return Answer::Ok;
        case BoxButtons::OkCancel:
            return Answer::Cancel;
        case BoxButtons::YesNo:
            return Answer::No;
    }
    return Answer::Ok;
}

}  // namespace idrova
