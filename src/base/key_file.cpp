// SPDX-License-Identifier: MIT
#include "base/key_file.h"

#include <algorithm>

#include "base/files.h"
#include "base/text.h"

namespace kev {
namespace {

// What stands behind the first "=", without any further "=" that follows it at once.
std::string_view ValuePart(std::string_view line, std::size_t equals) {
  const std::size_t first = line.find_first_not_of('=', equals);
  return first == std::string_view::npos ? std::string_view{} : Trim(line.substr(first));
}

}  // namespace

KeyFile::KeyFile(std::string_view bytes, const CodePage& page) : page_(&page) {
  entries_.reserve(kLinesLookedAt);
  for (std::size_t number = 1; number <= kLinesLookedAt && !bytes.empty(); ++number) {
    const std::string_view line = Trim(TakeLine(bytes));
    if (line.starts_with('#') || line.starts_with('[')) continue;
    const std::size_t equals = line.find('=');
    if (equals == std::string_view::npos) continue;
    entries_.push_back({line.substr(0, equals), ValuePart(line, equals), number});
  }
}

const KeyFile::Entry* KeyFile::Find(std::string_view key) const {
  // The lengths rule most of them out.
  const auto found = std::find_if(entries_.begin(), entries_.end(), [&](const Entry& entry) {
    return entry.key.size() == key.size() && page_->EqualsIgnoringCase(entry.key, key);
  });
  return found == entries_.end() ? nullptr : &*found;
}

std::string KeyFile::Value(std::string_view key) const {
  const Entry* entry = Find(key);
  return entry == nullptr ? std::string() : std::string(entry->value);
}

std::size_t KeyFile::Line(std::string_view key) const {
  const Entry* entry = Find(key);
  return entry == nullptr ? 0 : entry->line;
}

std::string ReadKey(const std::string& path, std::string_view key) {
  const Result<std::string> bytes = ReadWholeFile(path);
  return bytes ? KeyFile(*bytes).Value(key) : std::string();
}

}  // namespace kev
