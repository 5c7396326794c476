// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace idrova {

/// How idrova-calc ends.
enum class ExitStatus {
    Settled = 0,
    Refused = 1,   ///< with a message; or there was nothing to compute
    WrongUse = 2,  ///< or a file that cannot be read or written
    Unsettled = 3,
};

}  // namespace idrova
