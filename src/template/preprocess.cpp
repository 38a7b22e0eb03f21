// SPDX-License-Identifier: MIT
#include <algorithm>
#include <array>
#include <optional>

#include "base/take_token.h"
#include "base/text.h"
#include "template/scanner.h"

namespace kev {
namespace {

constexpr char kDisarmedOpen = '\1';
constexpr char kDisarmedClose = '\2';

constexpr auto kPositionKeys = std::to_array<std::string_view>(
    {"LINE", "BOX", "BOXF", "XYLINE", "ANYLINE", "CIRCLE", "CIRC", "PIC", "XY", "TEXTBOX", "QR", "QRCODE"});

struct Block {
  std::size_t open;
  std::size_t close;
};

bool IsPositionLike(std::string_view item, const CodePage& page) {
  const std::string_view name = Trim(NthToken(item, 1, '='));
  if (name.empty()) return false;
  const char first = name.front();
  if (first == '$' || first == '-' || first == '+' || (first >= '0' && first <= '9')) return true;
  const char capital = page.Upper(first);
  return std::any_of(kPositionKeys.begin(), kPositionKeys.end(), [&](std::string_view key) {
    return key.front() == capital && page.EqualsIgnoringCase(name, key);
  });
}

bool HasPosition(std::string_view block, const CodePage& page) {
  std::optional<std::string_view> rest = block;
  while (rest) {
    if (IsPositionLike(TakeToken(rest, ';'), page)) return true;
  }
  return false;
}

std::string_view TextOf(const Block& block, std::string_view line) {
  return line.substr(block.open + 1, block.close - block.open - 1);
}

// What is judged once it is known where the next block begins.
void Disarm(std::string& changed, std::string_view line, const Block& block, std::size_t next,
            const CodePage& page) {
  const bool textBehind = !Trim(line.substr(block.close + 1, next - block.close - 1)).empty();
  const bool hasBraces = line[block.open] == '{' && line[block.close] == '}';
  // Most blocks stand alone, and whatever they hold, nothing about them changes.
  if ((!textBehind && hasBraces) || HasPosition(TextOf(block, line), page)) return;
  // A block that stays a command gets back braces, whatever the document's own characters are.
  if (changed.empty()) changed = line;
  changed[block.open] = textBehind ? kDisarmedOpen : '{';
  changed[block.close] = textBehind ? kDisarmedClose : '}';
}

}  // namespace

// An open character inside an open block begins the block anew; a close character without one judges nothing.
std::string_view PreprocessLine(std::string& changed, std::string_view line, char open, char close,
                                const CodePage& page) {
  changed.clear();
  if (TrimLeft(line).starts_with('[')) return line;
  std::optional<Block> before;
  constexpr std::size_t kNone = std::string_view::npos;
  std::size_t begin = kNone;
  for (std::size_t at = 0; (at = FindEither(line, at, open, close)) < line.size(); ++at) {
    if (line[at] == close && begin != kNone) {
      if (before) Disarm(changed, line, *before, begin, page);
      before = {begin, at};
      CheckTokenCount(TextOf(*before, line), ';');
      begin = kNone;
    } else if (line[at] == open) {
      begin = at;
    }
  }
  if (before) Disarm(changed, line, *before, line.size(), page);
  return changed.empty() ? line : changed;
}

std::string PreprocessLine(std::string_view line, char open, char close, const CodePage& page) {
  std::string changed;
  return std::string(PreprocessLine(changed, line, open, close, page));
}

}  // namespace kev
