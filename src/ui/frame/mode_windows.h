// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

namespace idrova {

class ChildWindow;
struct Program;

/// Makes the window of a working mode: "FrmCel", "FrmTable" or "FrmSin". Null for any other
/// name.
ChildWindow* MakeModeWindow(std::string_view name, Program& program);

}  // namespace idrova
