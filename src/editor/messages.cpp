// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/messages.h"

#include "base/number_text.h"

namespace idrova {

MessageBox AskDeletePipe(int pipe) {
    return {"The DELETE function is not tested yet!\rDo you want to delete the pipe ? " +
                StrText(pipe) + " ?",
            "Pipe deleting", BoxIcon::Question, BoxButtons::OkCancel};
}

}  // namespace idrova
