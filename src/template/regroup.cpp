// SPDX-License-Identifier: MIT
#include "template/regroup.h"

#include <array>

#include "base/text.h"

namespace kev {
namespace {

constexpr std::array<std::string_view, 3> kMarkers = {"<[HEADER]", "<[FOOTER]", "<[DATA]"};

// The two section lines and a line end where the first stage had none.
constexpr std::size_t kAddedBytes = 32;

void AddLine(std::string& text, std::string_view line) {
  text += line;
  text += "\r\n";
}

}  // namespace

std::string RegroupBySection(std::string_view stageOne, const CodePage& page) {
  std::array<std::string, kMarkers.size()> blocks;
  std::string* current = nullptr;
  std::string text;
  text.reserve(stageOne.size() + kAddedBytes);
  bool inHead = true;
  while (!stageOne.empty()) {
    const std::string_view line = TakeLine(stageOne);
    if (inHead) {
      AddLine(text, line);
      inHead = !page.EqualsIgnoringCase(Trim(line), "[HEADER]");
      continue;
    }
    bool isMarker = false;
    for (std::size_t n = 0; n < kMarkers.size(); ++n) {
      if (line != kMarkers[n]) continue;
      current = &blocks[n];
      isMarker = true;
    }
    if (!isMarker && current != nullptr) AddLine(*current, line);
  }
  text += blocks[0];
  AddLine(text, "[FOOTER]");
  text += blocks[1];
  AddLine(text, "[DATA]");
  text += blocks[2];
  return text;
}

}  // namespace kev
