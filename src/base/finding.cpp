// SPDX-License-Identifier: MIT
#include "base/finding.h"

#include <array>

namespace kev {

std::string_view FindingText(FindingKind kind) {
  constexpr std::array<std::string_view, 9> kTexts = {
      "unknown key",      "text is lost",   "block becomes text",     "key past line 100 is ignored",
      "key is repeated",  "unknown column", "number is out of range", "will not come back after saving",
      "file is not there"};
  return kTexts[static_cast<std::size_t>(kind)];
}

}  // namespace kev
