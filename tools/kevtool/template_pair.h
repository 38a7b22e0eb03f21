// SPDX-License-Identifier: MIT
// Two templates beside each other: what kevtool diff compares and paints.
#pragma once

#include <optional>
#include <string>

#include "app/compare_documents.h"
#include "commands.h"

namespace kev::tool {

// Both with their geometry derived.
struct TemplatePair {
  Document First;
  Document Second;
};

// Paints both pages into the PNG file choice.image and frames what was removed, added and changed. Painting
// stores in the documents what it finds out. Returns why there is no file.
std::optional<std::string> RenderDiff(const DiffChoice& choice, TemplatePair& pair,
                                      const DocumentChanges& changes);

}  // namespace kev::tool
