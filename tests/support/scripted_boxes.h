// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <ostream>
#include <vector>

#include "base/message_boxes.h"

namespace idrova {

inline void PrintTo(const MessageBox& box, std::ostream* out) {
    *out << '[' << box.title << "] " << box.text << " (icon " << static_cast<int>(box.icon)
         << ", buttons " << static_cast<int>(box.buttons) << ')';
}

/// Answers the boxes that a test expects, in order; any other box, and one that never came, is a
/// failure of the test.
class ScriptedBoxes final : public MessageBoxes {
  public:
    ScriptedBoxes() = default;
    ScriptedBoxes(const ScriptedBoxes&) = delete;
    ScriptedBoxes& operator=(const ScriptedBoxes&) = delete;
    ~ScriptedBoxes() override {
        for (const Step& step : script_) {
            ADD_FAILURE() << "never shown: " << testing::PrintToString(step.box);
        }
    }

    ScriptedBoxes& Expect(const MessageBox& box, Answer answer = Answer::Ok) {
        script_.push_back({box, answer});
        return *this;
    }

    Answer Show(const MessageBox& box) override {
        if (script_.empty()) {
            ADD_FAILURE() << "not expected: " << testing::PrintToString(box);
            return box.buttons == BoxButtons::YesNo ? Answer::No : Answer::Cancel;
        }
        const Step step = script_.front();
        script_.pop_front();
        EXPECT_EQ(box, step.box);
        return step.answer;
    }

  private:
    struct Step {
        MessageBox box;
        Answer answer;
    };
    std::deque<Step> script_;
};

/// Takes any box, answers it as told, keeps what was shown.
class RecordedBoxes final : public MessageBoxes {
  public:
    explicit RecordedBoxes(Answer yesNo = Answer::No, Answer okCancel = Answer::Ok)
        : yesNo_(yesNo), okCancel_(okCancel) {}

    Answer Show(const MessageBox& box) override {
        shown.push_back(box);
        if (box.buttons == BoxButtons::YesNo) return yesNo_;
        return box.buttons == BoxButtons::OkCancel ? okCancel_ : Answer::Ok;
    }

    std::vector<MessageBox> shown;

  private:
    Answer yesNo_;
    Answer okCancel_;
};

}  // namespace idrova
