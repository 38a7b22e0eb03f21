// SPDX-License-Identifier: MIT
#include "data/sample_records.h"

#include <algorithm>

#include "base/text.h"
#include "data/sample_check.h"
#include "template/sample_copy.h"

namespace kev {
namespace {

constexpr char kPageMark = '>';

std::vector<std::string_view> Split(std::string_view text, char separator) {
  std::vector<std::string_view> parts;
  for (std::size_t at = text.find(separator); at != std::string_view::npos; at = text.find(separator)) {
    parts.push_back(text.substr(0, at));
    text.remove_prefix(at + 1);
  }
  parts.push_back(text);
  return parts;
}

bool IsRecord(std::string_view line) {
  if (line.empty() || line.front() == kPageMark || line.front() != line.back()) return false;
  const auto delimiters = std::count(line.begin(), line.end(), line.front());
  return static_cast<std::size_t>(delimiters) < kMostRecordParts;
}

struct TypeScan {
  RecordTypeTable types;
  bool headSeen = false;

  // False where the first line with a text is not the head.
  bool Take(std::string_view line) {
    line = Trim(line);
    if (line.empty()) return true;
    const bool isHead = NamesTemplate(line);
    if (!headSeen) return headSeen = isHead;
    if (!isHead && IsRecord(line)) types.Add(line);
    return true;
  }
};

}  // namespace

SampleRecordReader::SampleRecordReader(std::string_view bytes) : rest_(bytes) {
  while (!rest_.empty()) {
    const std::string_view first = TakeTrimmedLine();
    if (first.empty()) continue;
    if (!NamesTemplate(first)) rest_ = {};
    return;
  }
}

std::string_view SampleRecordReader::TakeTrimmedLine() {
  ++line_;
  return Trim(TakeLine(rest_));
}

std::optional<SampleRecord> SampleRecordReader::Next() {
  while (!rest_.empty()) {
    const std::string_view line = TakeTrimmedLine();
    if (!IsRecord(line) || NamesTemplate(line)) continue;
    std::vector<std::string_view> parts = Split(line, line.front());
    SampleRecord record{.Name = {}, .Values = {}, .Line = line_};
    // The first and the last part are empty: they lie outside the delimiters.
    if (parts.size() > 2) {
      record.Name = Trim(parts[1]);
      record.Values.assign(parts.begin() + 2, parts.end() - 1);
    }
    return record;
  }
  return std::nullopt;
}

void RecordTypeTable::Add(std::string_view line) {
  const char delimiter = line.front();
  const std::string_view rest = line.substr(1);
  const std::string_view name = Trim(rest.substr(0, rest.find(delimiter)));
  if (name.empty()) return;
  const std::size_t slot = (static_cast<unsigned char>(name.front()) + 7U * name.size() +
                            static_cast<unsigned char>(name.back())) %
                           recent_.size();
  if (recent_[slot] != 0 && types_[recent_[slot] - 1U].Name == name) {
    ++types_[recent_[slot] - 1U].Records;
    return;
  }
  RecordType* type = Find(name);
  if (type == nullptr) return;
  recent_[slot] = static_cast<std::uint8_t>(type - types_.data() + 1);
  // Delimiters stand around the name and behind each value.
  if (type->Records++ == 0)
    type->Values = static_cast<std::size_t>(std::count(line.begin(), line.end(), delimiter)) - 2;
}

// A new type has no records yet. Nothing where there is no room for one more.
RecordType* RecordTypeTable::Find(std::string_view name) {
  std::string key = page_.Upper(name);
  if (const auto known = byName_.find(key); known != byName_.end()) return &types_[known->second];
  if (types_.size() == kMostRecordTypes) return nullptr;
  byName_.emplace(std::move(key), types_.size());
  return &types_.emplace_back(RecordType{std::string(name), 0, 0});
}

std::vector<RecordType> RecordTypesOf(std::string_view bytes, const CodePage& page) {
  TypeScan scan{RecordTypeTable(page)};
  while (!bytes.empty() && scan.Take(TakeLine(bytes)))
    continue;
  return scan.types.Take();
}

std::vector<RecordType> ReadRecordTypes(const std::string& path, const CodePage& page) {
  if (SampleKindOf(path) != SampleKind::Kex) return {};
  Result<LineReader> lines = LineReader::Open(path);
  if (!lines) return {};
  TypeScan scan{RecordTypeTable(page)};
  while (lines->Next() && (lines->Cut() || scan.Take(lines->Line())))
    continue;
  return scan.types.Take();
}

std::vector<std::string> FieldNames(std::size_t values, std::string_view word) {
  std::vector<std::string> names;
  for (std::size_t n = 1; n <= values; ++n)
    names.push_back("@" + std::string(word) + (n < 10 ? "0" : "") + std::to_string(n));
  return names;
}

std::vector<std::string> FieldsOfHead(std::string_view head) {
  const std::size_t colon = head.rfind(':');
  if (colon == std::string_view::npos) return {};
  std::string_view list = Trim(head.substr(colon + 1));
  if (list.ends_with(']')) list.remove_suffix(1);
  std::vector<std::string> fields;
  for (const std::string_view field : Split(list, ',')) {
    if (!Trim(field).empty()) fields.emplace_back(Trim(field));
  }
  return fields;
}

}  // namespace kev
