// SPDX-License-Identifier: MIT
// Values that few records hold. Where there is none they take the room of a pointer: records are copied and
// compared by the thousand, and what is not there must cost nothing. Copies share nothing.
#pragma once

#include <concepts>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace kev {

template <typename T>
class RareOptional {
 public:
  RareOptional() = default;
  RareOptional(const RareOptional& other) : value_(other.value_ ? std::make_unique<T>(*other) : nullptr) {}
  RareOptional(RareOptional&&) = default;
  ~RareOptional() = default;

  RareOptional& operator=(const RareOptional& other) {
    if (!other.value_)
      value_.reset();
    else if (this != &other)
      *this = *other;
    return *this;
  }
  RareOptional& operator=(RareOptional&&) = default;
  RareOptional& operator=(std::nullopt_t) {
    value_.reset();
    return *this;
  }
  template <typename Value>
  requires std::assignable_from<T&, Value> RareOptional& operator=(Value&& value) {
    if (!value_) value_ = std::make_unique<T>();
    *value_ = std::forward<Value>(value);
    return *this;
  }
  RareOptional& operator=(std::optional<T> value) {
    if (!value) return *this = std::nullopt;
    return *this = *std::move(value);
  }
  void reset() { value_.reset(); }

  explicit operator bool() const { return value_ != nullptr; }
  T& operator*() { return *value_; }
  const T& operator*() const { return *value_; }
  const T* operator->() const { return value_.get(); }
  T value_or(T none) const { return value_ ? *value_ : std::move(none); }

  friend bool operator==(const RareOptional& a, const RareOptional& b) {
    return a.value_ && b.value_ ? *a == *b : a.value_ == b.value_;
  }
  template <std::convertible_to<T> Value>
  friend bool operator==(const RareOptional& a, const Value& b) {
    return a && *a == b;
  }

 private:
  std::unique_ptr<T> value_;
};

// A text that is mostly empty.
class RareText {
 public:
  RareText() = default;

  template <std::convertible_to<std::string_view> Text>
  RareText& operator=(const Text& text) {
    const std::string_view view = text;
    if (view.empty())
      text_.reset();
    else
      text_ = view;
    return *this;
  }

  const std::string& Text() const {
    static const std::string none;
    return text_ ? *text_ : none;
  }
  operator const std::string&() const { return Text(); }
  operator std::string_view() const { return text_ ? std::string_view(*text_) : std::string_view(); }
  bool empty() const { return !text_; }
  std::size_t size() const { return text_ ? text_->size() : 0; }
  void clear() { text_.reset(); }

  bool operator==(const RareText&) const = default;
  template <std::convertible_to<std::string_view> Other>
  requires(!std::same_as<Other, RareText>) friend bool operator==(const RareText& a, const Other& b) {
    return std::string_view(a) == std::string_view(b);
  }

 private:
  RareOptional<std::string> text_;  // never an empty text
};

}  // namespace kev
