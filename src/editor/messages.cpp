// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/messages.h"

#include <string>

#include "base/number_text.h"

namespace idrova {

MessageBox AskReplace(std::string_view selected, std::string_view chosen) {
    return {"Replace " + std::string(selected) + " by " + std::string(chosen) + "?\r" +
                "With Cancel the next click on a pipe inserts it.",
            "Components insertion", BoxIcon::Question, BoxButtons::OkCancel};
}

MessageBox AskDeletePipe(int pipe) {
    return {"The DELETE function is not tested yet!\rDo you want to delete the pipe ? " +
                StrText(pipe) + " ?",
            "Pipe deleting", BoxIcon::Question, BoxButtons::OkCancel};
}

}  // namespace idrova
