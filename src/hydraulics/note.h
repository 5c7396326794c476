// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace idrova {

enum class NoteOn { Network, Pipe, Point, Cell, Row };

/// A remark says how a result is to be taken, and neither counts nor colours the status.
enum class NoteWeight { Warning, Remark };

/// What the user should know of a run, in plain words, and the place that it is about.
struct Note {
    std::string text;
    NoteOn on = NoteOn::Network;
    /// Of the pipe, the point or the cell; of a table row what stands beside it; 0 for the network.
    int number = 0;
    NoteWeight weight = NoteWeight::Warning;

    bool operator==(const Note&) const = default;
};

}  // namespace idrova
