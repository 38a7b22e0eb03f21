// SPDX-License-Identifier: MIT
// KEY=value lines, as they stand at the head of a template and in the designer's own small files.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/code_page.h"

namespace kev {

// The keys of a text, which must outlive it: only its first 100 lines count, the first line with a key wins,
// and a line that begins with "#" or "[" holds none.
class KeyFile {
 public:
  static constexpr std::size_t kLinesLookedAt = 100;

  explicit KeyFile(std::string_view bytes, const CodePage& page = CodePage::Default());

  // The value, trimmed; empty when the key is not there. The key is found in any case.
  std::string Value(std::string_view key) const;
  // The line, counted from 1, on which the key stands; 0 when it is not there.
  std::size_t Line(std::string_view key) const;

  struct Entry {
    std::string_view key;    // as it is written
    std::string_view value;  // trimmed
    std::size_t line;        // counted from 1
  };
  // Every line that holds a key, repeated keys included.
  const std::vector<Entry>& Entries() const { return entries_; }

 private:
  const Entry* Find(std::string_view key) const;

  const CodePage* page_;
  std::vector<Entry> entries_;
};

// One key of one file; empty when the file cannot be read.
std::string ReadKey(const std::string& path, std::string_view key);

}  // namespace kev
