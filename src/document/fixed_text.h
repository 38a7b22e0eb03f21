// SPDX-License-Identifier: MIT
// A text of a few characters that lies in its record. What is longer is cut to its length.
#pragma once

#include <algorithm>
#include <array>
#include <concepts>
#include <cstdint>
#include <string>
#include <string_view>

namespace kev {

template <std::uint8_t kLength>
class FixedText {
 public:
  template <std::convertible_to<std::string_view> Text>
  FixedText& operator=(const Text& text) {
    const std::string_view kept = std::string_view(text).substr(0, kLength);
    // Behind the text there are zeros, so that equal texts are equal bytes. The text may be a part of this
    // one.
    std::array<char, kLength> characters{};
    std::copy(kept.begin(), kept.end(), characters.begin());
    size_ = static_cast<std::uint8_t>(kept.size());
    characters_ = characters;
    return *this;
  }

  operator std::string_view() const { return {characters_.data(), size_}; }
  operator std::string() const { return std::string(std::string_view(*this)); }
  bool empty() const { return size_ == 0; }
  char front() const { return characters_.front(); }
  void clear() { *this = std::string_view(); }

  bool operator==(const FixedText&) const = default;
  template <std::convertible_to<std::string_view> Other>
  requires(!std::same_as<Other, FixedText>) friend bool operator==(const FixedText& a, const Other& b) {
    return std::string_view(a) == std::string_view(b);
  }

 private:
  std::array<char, kLength> characters_{};
  std::uint8_t size_ = 0;
};

}  // namespace kev
