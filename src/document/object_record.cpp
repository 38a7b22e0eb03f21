// SPDX-License-Identifier: MIT
#include "document/object_record.h"

#include <algorithm>
#include <array>

namespace kev {
namespace {

constexpr std::array<std::string_view, 15> kKindTexts = {
    "",       "SECTION", "SUBSECTION", "ENDOFSUBSECTION", "COMMAND", "BOX",   "CHART",  "LINE",
    "CIRCLE", "ANYLINE", "PICTURE",    "BARCODE",         "QR",      "LABEL", "TEXTBOX"};

// Makes each number of a usual page six digits long.
constexpr std::int64_t kKeyOffset = 200000;

}  // namespace

std::string OrderKey::Text() const {
  std::string text;
  if (Row == 0) return text;
  for (const std::int64_t part : {Y, X, Row})
    text += std::to_string(part + kKeyOffset);
  text.resize(std::min(text.size(), kSortKeyLength));
  return text;
}

std::string_view KindText(ObjectKind kind) {
  return kKindTexts[static_cast<std::size_t>(kind)];
}

ObjectKind KindFromText(std::string_view text) {
  const auto found = std::find(kKindTexts.begin(), kKindTexts.end(), text);
  return found == kKindTexts.end() ? ObjectKind::None : static_cast<ObjectKind>(found - kKindTexts.begin());
}

}  // namespace kev
