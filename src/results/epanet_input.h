// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

#include "base/result.h"
#include "results/run_record.h"

namespace idrova {

/// The network of a run as an EPANET 2.2 input file, in m3/h, m and mm, by the law of Darcy and
/// Weisbach. Nodes are named P and their point's number, links pipe, pump or drop and theirs.
/// - A given pressure is a reservoir of head p/(rho g) + z; every other open end has its
///   computed flow as demand, so that the same flows come out.
/// - A loss coefficient is a minor loss of its pipe, and the two points of its cell are one node; a
///   fixed drop is a pressure breaker valve. A duct is the circle of equal friction.
/// - A pump has a head curve of three points, the working point among them where the curve falls.
/// Fails without results and for a gas.
Result<std::string> EpanetInput(const RunRecord& run, std::string_view name,
                                std::string_view description);

}  // namespace idrova
