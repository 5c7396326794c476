// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QComboBox>
#include <functional>
#include <string>
#include <vector>

namespace idrova {

/// A list whose text can also be typed, as the name of a new record for instance. Typing neither
/// completes the text to an entry nor chooses one.
class NameList : public QComboBox {
  public:
    explicit NameList(const char* name);

    /// Shows these entries, the one at `position` (from 0) chosen; none, and no text, by default.
    /// Does not count as a choice of the user.
    void Refill(const std::vector<std::string>& entries, int position = -1);

    std::string Text() const;
};

void AddSizes(QComboBox& list);

/// A list of the nominal sizes, none chosen.
QComboBox* SizeList(const char* name, QWidget* parent = nullptr);

/// From now on the list shows the nominal size of the diameter (mm) that stands in the field.
void ShowSizeOf(const QLineEdit& diameter, QComboBox& sizes);

/// Calls `chosen` with the position of an entry each time one is chosen, also when it is the one
/// that was chosen before. May call it twice for one choice.
void OnChosen(QComboBox& list, const std::function<void(int)>& chosen);

}  // namespace idrova
