// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace idrova {

constexpr const char* kProjectIsTable = "This project is a table: choose Mode, Table (Ctrl+2)";

}  // namespace idrova
