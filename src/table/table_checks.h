// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <span>
#include <vector>

#include "base/message_boxes.h"
#include "hydraulics/note.h"
#include "model/project.h"
#include "table/table_texts.h"

namespace idrova {

/// The rows of the list, from row `kFirstTableRow` on.
using ListedRows = std::span<const TableRowRec>;

/// Why a table is not computed: the box that says so, and a note for each place.
struct TableRefusal {
    MessageBox box;
    std::vector<Note> notes;
};

/// A refusal when ends of the same kind disagree on a point's pressure, or when the point numbers
/// do not run from 1 without gaps.
std::optional<TableRefusal> CheckRows(ListedRows rows);

/// What the user should know of a table that is computed: rows that are not, points whose pressure
/// is not the same everywhere, texts that are no numbers.
std::vector<Note> TableNotes(const Project& project, const TableTexts& texts);

}  // namespace idrova
