// SPDX-License-Identifier: MIT
// Cut, copy and paste of whole objects, within the program: the clipboard of the system is not used.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>

#include "surface/page_work.h"

namespace kev {

// What was cut or copied last. It outlives the document that it comes from, so nothing in it depends on one:
// positions are plain numbers, also where an object stood on a column.
struct ClipboardTable {
  std::map<int, ObjectRecord> Rows;             // by the row that the object was copied from
  const CodePage* Page = &CodePage::Default();  // of the texts

  bool Empty() const { return Rows.empty(); }
};

enum class ClipboardUse : std::uint8_t { Take, Paste };

// Whether the selection lets objects be cut, copied or pasted; tells where it does not. A bar is refused for
// all three, an end bar for the first two.
bool CheckMovable(PageWork& work, ClipboardUse use);

// The clipboard holds the current object or the members of the group, and nothing that it held before. With
// nothing selected, or a refusal, it stays. The document is not changed.
void CopyObjects(PageWork& work, ClipboardTable& clipboard);

// The same, and the objects are deleted with one snapshot.
void CutObjects(PageWork& work, ClipboardTable& clipboard);

// Puts the objects on the page, their smallest X and Y at the place of the last click, in the subsection
// under it; refused with a message where there is none. They are selected then. Gives a character (UTF-8)
// that the template can't hold, and then nothing is pasted. A full table throws std::out_of_range.
std::optional<std::string> PasteObjects(PageWork& work, const ClipboardTable& clipboard);

}  // namespace kev
