// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace idrova {

/// Takes the lines of a project file apart, ended by line feed with or without carriage return.
/// The first fault stays and names its line; from then on every line is empty and every number 0,
/// so that a reader need only look at `Failed` where it loops and at its end.
class ProjectLines {
  public:
    static constexpr std::size_t kMaxItems = 10;

    explicit ProjectLines(std::string_view text) : rest_(text) {}

    /// The next line. It must have its line end: a file cut off inside a number would else read
    /// as another number.
    std::string_view Line();

    /// Passes a key line, whatever its words are. One that begins with a number is none: a count
    /// before it was too small.
    void Key();

    /// The next line as UTF-8; bytes that are none are taken as Latin-1.
    std::string Text();

    /// The same for the last line of a file: its line end, or all of it, may be missing.
    std::string LastText();

    /// True when the next line is `key`, which is then passed.
    bool PassKey(std::string_view key);

    /// Starts a line of exactly `count` numbers; `Whole`, `Int16` and `Single` take them in order.
    void Numbers(std::size_t count);
    int Whole(int lowest, int highest);
    std::int16_t Int16();
    float Single();

    /// A line with one whole number from 0 to `capacity`.
    int Count(int capacity);

    /// A line with one whole number; true exactly when it is 1.
    bool Flag();

    /// Of the line read last.
    int LineNumber() const { return line_; }

    bool AtEnd() const { return rest_.empty(); }
    bool Failed() const { return fault_.has_value(); }
    const std::string& Fault() const { return *fault_; }

    /// Marks the line read last, or the given one, as wrong.
    void Fail(std::string_view reason) { FailAt(line_, reason); }
    void FailAt(int line, std::string_view reason);

  private:
    void FailItem(std::string_view reason);
    std::string_view NextLine();
    std::optional<double> Item();

    std::string_view rest_;
    int line_ = 0;
    std::array<std::string_view, kMaxItems> items_;
    std::size_t item_ = 0;  ///< number of items taken from the line
    std::optional<std::string> fault_;
};

}  // namespace idrova
