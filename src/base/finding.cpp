// SPDX-License-Identifier: MIT
#include "base/finding.h"

#include <array>

namespace kev {

std::string_view FindingText(FindingKind kind) {
  constexpr std::array<std::string_view, kFindingKinds> kTexts = {"unknown key",
                                                                  "text is lost",
                                                                  "block becomes text",
                                                                  "key past line 100 is ignored",
                                                                  "key is repeated",
                                                                  "unknown column",
                                                                  "number is out of range",
                                                                  "will not come back after saving",
                                                                  "file is not there",
                                                                  "value changes on saving",
                                                                  "object is lost on saving",
                                                                  "object appears on saving",
                                                                  "object becomes another kind on saving",
                                                                  "column is lost on saving",
                                                                  "column appears on saving",
                                                                  "bar code reaches too far to be painted",
                                                                  "record name with a colon gets no values"};
  return kTexts.at(static_cast<std::size_t>(kind));
}

}  // namespace kev
