// SPDX-License-Identifier: MIT
// The values that a sample file holds for one field, for the eye of the user. Files of any size are read in
// pieces, and no further than the list goes.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "base/code_page.h"

namespace kev {

inline constexpr std::size_t kMostValuesShown = 100;
// Stands behind the values of a full list, whether or not there are more.
inline constexpr std::string_view kMoreValues = "...";

// Calls `use` for each line, without the blanks around it, until it returns false. Empty lines are left out,
// and so are lines that no record or variable can be: those over a million characters. False when the file
// can't be read; a folder can't.
bool ForEachSampleLine(const std::string& path, const std::function<bool(std::string_view line)>& use);

struct SampleValues {
  std::vector<std::string> Items;  // kMoreValues stands last in a full list
  std::size_t Records = 0;         // how many values there are
  bool FileMissing = false;
};

// Of a .kex file: what the records of this name have in the field, counted from 0. A record that has no such
// field has an empty value. Names are the same in any case and with blanks around them.
SampleValues FieldValues(const std::string& path, std::string_view recordName, std::size_t field,
                         const CodePage& page);

// Of a .ked file: what stands behind the "=" of the variable's lines, and the names of all of them, each
// once.
SampleValues VariableValues(const std::string& path, std::string_view variable);
std::vector<std::string> VariableNames(const std::string& path);

}  // namespace kev
