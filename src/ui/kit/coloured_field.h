// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "ui/kit/text_field.h"

namespace idrova {

/// What a field is for, which its ground tells.
enum class FieldGround { Typed, Computed, Unknown };

/// A field with a ground of its own, in bright and in dark themes. An old result, one that no
/// longer belongs to what is typed and set, is grey.
class ColouredField : public SelectingField {
  public:
    explicit ColouredField(const char* name, FieldGround ground = FieldGround::Typed);

    void SetGround(FieldGround ground);
    void SetOld(bool old);
    bool IsOld() const { return old_; }

  protected:
    bool event(QEvent* event) override;

  private:
    void Colour();

    FieldGround ground_;
    bool old_ = false;
};

/// A read-only field for a computed text. Tab passes it over.
class ComputedField : public ColouredField {
  public:
    explicit ComputedField(const char* name);

    void Show(const std::string& text, bool old);
};

/// Of a value beyond a limit, in the theme of the program.
QColor BeyondLimitColour();

/// Half way from the text's colour to that of its ground.
QColor OldResultColour(const QColor& text, const QColor& ground);

}  // namespace idrova
