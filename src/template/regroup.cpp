// SPDX-License-Identifier: MIT
#include "template/regroup.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <vector>

#include "base/text.h"

namespace kev {
namespace {

constexpr std::array<std::string_view, 3> kMarkers = {"<[HEADER]", "<[FOOTER]", "<[DATA]"};

// The two section lines and a line end where the first stage had none.
constexpr std::size_t kAddedBytes = 32;

constexpr std::string_view kLineEnd = "\r\n";

void AddLine(std::string& text, std::string_view line) {
  text += line;
  text += kLineEnd;
}

// The block that a marker line begins; nothing for any other line.
std::optional<std::size_t> BlockOf(std::string_view line) {
  if (!line.starts_with('<')) return std::nullopt;
  const auto found = std::find(kMarkers.begin(), kMarkers.end(), line);
  if (found == kMarkers.end()) return std::nullopt;
  return static_cast<std::size_t>(found - kMarkers.begin());
}

// The lines of one block, as pieces of stage one: all that stands together there is one piece.
class BlockLines {
 public:
  // `rest` is the text from the beginning of the line on.
  void Add(std::string_view line, std::string_view rest) {
    const bool ends = rest.substr(line.size(), kLineEnd.size()) == kLineEnd;
    const std::string_view whole = rest.substr(0, line.size() + (ends ? kLineEnd.size() : 0));
    if (!pieces_.empty() && pieces_.back().data() + pieces_.back().size() == whole.data())
      pieces_.back() = {pieces_.back().data(), pieces_.back().size() + whole.size()};
    else
      pieces_.push_back(whole);
    if (!ends) pieces_.push_back(kLineEnd);
  }
  void AppendTo(std::string& text) const {
    for (const std::string_view piece : pieces_)
      text += piece;
  }

 private:
  std::vector<std::string_view> pieces_;
};

}  // namespace

std::string RegroupBySection(std::string_view stageOne, const CodePage& page) {
  std::array<BlockLines, kMarkers.size()> blocks;
  BlockLines* current = nullptr;
  std::string text;
  text.reserve(stageOne.size() + kAddedBytes);
  bool inHead = true;
  while (!stageOne.empty()) {
    const std::string_view rest = stageOne;
    const std::string_view line = TakeLine(stageOne);
    if (inHead) {
      AddLine(text, line);
      inHead = !page.EqualsIgnoringCase(Trim(line), "[HEADER]");
    } else if (const std::optional<std::size_t> block = BlockOf(line)) {
      current = &blocks[*block];
    } else if (current != nullptr) {
      current->Add(line, rest);
    }
  }
  blocks[0].AppendTo(text);
  AddLine(text, "[FOOTER]");
  blocks[1].AppendTo(text);
  AddLine(text, "[DATA]");
  blocks[2].AppendTo(text);
  return text;
}

}  // namespace kev
