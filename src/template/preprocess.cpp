// SPDX-License-Identifier: MIT
#include <array>
#include <vector>

#include "base/text.h"
#include "template/reader.h"

namespace kev {
namespace {

constexpr char kDisarmedOpen = '\1';
constexpr char kDisarmedClose = '\2';

constexpr auto kPositionKeys = std::to_array<std::string_view>(
    {"LINE", "BOX", "BOXF", "XYLINE", "ANYLINE", "CIRCLE", "CIRC", "PIC", "XY", "TEXTBOX", "QR", "QRCODE"});

struct Block {
  std::size_t open;
  std::size_t close;
  bool hasPosition;
};

bool IsPositionLike(std::string_view item, const CodePage& page) {
  const std::string_view name = Trim(NthToken(item, 1, '='));
  if (name.empty()) return false;
  const char first = name.front();
  if (first == '$' || first == '-' || first == '+' || (first >= '0' && first <= '9')) return true;
  const std::string capitals = page.Upper(name);
  for (const std::string_view key : kPositionKeys) {
    if (capitals == key) return true;
  }
  return false;
}

bool HasPosition(std::string_view block, const CodePage& page) {
  const Tokens items = SplitTokens(block, ';');
  for (std::size_t n = 1; n <= items.Count(); ++n) {
    if (IsPositionLike(items[n], page)) return true;
  }
  return false;
}

// An open character inside an open block begins the block anew; a close character without one judges nothing.
std::vector<Block> FindBlocks(std::string_view line, char open, char close, const CodePage& page) {
  std::vector<Block> blocks;
  bool inBlock = false;
  std::size_t begin = 0;
  for (std::size_t at = 0; at < line.size(); ++at) {
    if (line[at] == close && inBlock) {
      blocks.push_back({begin, at, HasPosition(line.substr(begin + 1, at - begin - 1), page)});
      inBlock = false;
    } else if (line[at] == open) {
      inBlock = true;
      begin = at;
    }
  }
  return blocks;
}

}  // namespace

std::string PreprocessLine(std::string_view line, char open, char close, const CodePage& page) {
  std::string result(line);
  if (TrimLeft(line).starts_with('[')) return result;
  const std::vector<Block> blocks = FindBlocks(line, open, close, page);
  for (std::size_t n = 0; n < blocks.size(); ++n) {
    const Block& block = blocks[n];
    if (block.hasPosition) continue;
    const std::size_t next = n + 1 < blocks.size() ? blocks[n + 1].open : line.size();
    const bool textBehind = !Trim(line.substr(block.close + 1, next - block.close - 1)).empty();
    // A block that stays a command gets back braces, whatever the document's own characters are.
    result[block.open] = textBehind ? kDisarmedOpen : '{';
    result[block.close] = textBehind ? kDisarmedClose : '}';
  }
  return result;
}

}  // namespace kev
