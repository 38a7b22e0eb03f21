// SPDX-License-Identifier: MIT
#include "base/finding.h"

#include <array>

namespace kev {
namespace {

struct KindWords {
  FindingKind kind;
  std::string_view name;
  std::string_view text;
};

constexpr std::array<KindWords, kFindingKinds> kWords = {{
    {FindingKind::UnknownKey, "unknown-key", "unknown key"},
    {FindingKind::LostText, "text-lost", "text is lost"},
    {FindingKind::DisarmedBlock, "block-becomes-text", "block becomes text"},
    {FindingKind::LateKey, "late-key", "key past line 100 is ignored"},
    {FindingKind::RepeatedKey, "repeated-key", "key is repeated"},
    {FindingKind::DanglingColumn, "unknown-column", "unknown column"},
    {FindingKind::ValueOutOfRange, "out-of-range", "value does not fit"},
    {FindingKind::WillNotComeBack, "not-saved", "will not come back after saving"},
    {FindingKind::MissingFile, "missing-file", "file is not there"},
    {FindingKind::ValueChanges, "value-changes", "value changes on saving"},
    {FindingKind::ObjectLost, "object-lost", "object is lost on saving"},
    {FindingKind::ObjectAppears, "object-appears", "object appears on saving"},
    {FindingKind::KindChanges, "kind-changes", "object becomes another kind on saving"},
    {FindingKind::ColumnLost, "column-lost", "column is lost on saving"},
    {FindingKind::ColumnAppears, "column-appears", "column appears on saving"},
    {FindingKind::PaintingStops, "painting-stops", "bar code reaches too far to be painted"},
    {FindingKind::NameWithColon, "name-with-colon", "record name with a colon gets no values"},
    {FindingKind::PastPage, "past-page", "position is past the page"},
    {FindingKind::OutsideBodies, "outside-bodies", "object lies in no subsection"},
    {FindingKind::MovesSubsection, "moves-subsection",
     "object lies in another subsection than it is written in"},
    {FindingKind::RewriteDiffers, "rewrite-differs", "line changes on saving"},
}};

constexpr bool InOrder() {
  for (std::size_t n = 0; n < kWords.size(); ++n) {
    if (static_cast<std::size_t>(kWords[n].kind) != n) return false;
  }
  return true;
}
static_assert(InOrder());

const KindWords& WordsOf(FindingKind kind) {
  return kWords.at(static_cast<std::size_t>(kind));
}

}  // namespace

std::string_view FindingText(FindingKind kind) {
  return WordsOf(kind).text;
}

std::string_view FindingName(FindingKind kind) {
  return WordsOf(kind).name;
}

}  // namespace kev
