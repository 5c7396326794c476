// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <utility>
#include <variant>

namespace idrova {

/// Why an operation failed, in words that a message box can show.
struct Failure {
    std::string text;
};

/// A value, or the reason why there is none.
template <typename T>
class [[nodiscard]] Result {
  public:
    // NOLINTBEGIN(google-explicit-constructor): a function returns its value or its failure as is.
    Result(T value) : content_(std::move(value)) {}
    Result(Failure failure) : content_(std::move(failure)) {}
    // NOLINTEND(google-explicit-constructor)

    explicit operator bool() const { return std::holds_alternative<T>(content_); }
    const T& operator*() const { return std::get<T>(content_); }
    T& operator*() { return std::get<T>(content_); }
    const T* operator->() const { return &std::get<T>(content_); }
    T* operator->() { return &std::get<T>(content_); }

    /// Only when there is no value.
    const std::string& Error() const { return std::get<Failure>(content_).text; }

  private:
    std::variant<T, Failure> content_;
};

/// Success that carries nothing.
struct Done {};
using Status = Result<Done>;

}  // namespace idrova
