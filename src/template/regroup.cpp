// SPDX-License-Identifier: MIT
#include "template/regroup.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>

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

}  // namespace

std::string RegroupBySection(std::string_view stageOne, const CodePage& page) {
  std::array<std::string, kMarkers.size()> blocks;
  std::string* current = nullptr;
  std::string text;
  text.reserve(stageOne.size() + kAddedBytes);
  bool inHead = true;
  while (!stageOne.empty()) {
    const std::string_view rest = stageOne;
    const std::string_view line = TakeLine(stageOne);
    if (inHead) {
      AddLine(text, line);
      inHead = !page.EqualsIgnoringCase(Trim(line), "[HEADER]");
      continue;
    }
    if (const std::optional<std::size_t> block = BlockOf(line)) {
      current = &blocks[*block];
    } else if (current != nullptr) {
      // Nearly all lines end as they should and go on as they are.
      if (rest.substr(line.size(), kLineEnd.size()) == kLineEnd)
        *current += rest.substr(0, line.size() + kLineEnd.size());
      else
        AddLine(*current, line);
    }
  }
  text += blocks[0];
  AddLine(text, "[FOOTER]");
  text += blocks[1];
  AddLine(text, "[DATA]");
  text += blocks[2];
  return text;
}

}  // namespace kev
