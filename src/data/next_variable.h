// SPDX-License-Identifier: MIT
// Which variable of the sample data the next label of a subsection shows: the first one that none of its
// labels shows yet. A .ked file names its variables itself; with a .kex file they are the fields in the
// subsection's own head line, and the file need not be there.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "document/document.h"

namespace kev {

enum class SampleForm : std::uint8_t { None, Records, Variables };

// By the ending of the name, in any case: ".kex" or ".kx" holds records, ".ked" or ".kd" variables.
SampleForm SampleFormOf(std::string_view path);

// The first name that stands in no LABEL of the subsection. It also counts as used where it is but a part of
// a label's text. Case does not matter.
std::optional<std::string> FirstUnused(const Document& document, std::string_view ownerName,
                                       const std::vector<std::string>& names);

struct NextVariable {
  std::optional<std::string> Name;  // nothing when there is none left, or no sample data
  bool FileMissing = false;         // the .ked file can't be read
};

// `ownerRow` is the bar of the subsection, `samplePath` native and may be empty.
NextVariable FindNextVariable(const Document& document, int ownerRow, const std::string& samplePath);

}  // namespace kev
