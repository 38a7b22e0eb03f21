// SPDX-License-Identifier: MIT
// From the readable language source to the lines of Kev.lng.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kevlang {

// What is wrong with a line of the source, counted from 1.
struct Fault {
  int Line;
  std::string Message;
};

// The compiled file, which is of no use as soon as there is a fault. Faults stand in the order of the source.
struct Compilation {
  std::string File;
  int Entries = 0;
  std::vector<Fault> Faults;
};

// `source` is UTF-8. An entry is a line "[number]" and, below it in any order, one line for each language:
// its letter (E, S, I or P), one blank, the text. Empty lines and lines beginning with "#" say nothing. The
// compiled file has the English line of each number first, CR LF line ends, and Windows-1252 characters
// scrambled with `key`, which has 1 to 20 digits.
Compilation Compile(std::string_view source, std::string_view key);

}  // namespace kevlang
