// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace idrova {

enum class NoteOn { Network, Pipe, Point, Cell };

/// What the user should know of a run, in plain words, and the place that it is about.
struct Note {
    std::string text;
    NoteOn on = NoteOn::Network;
    int number = 0;  ///< of the pipe, the point or the cell; 0 for the network

    bool operator==(const Note&) const = default;
};

}  // namespace idrova
