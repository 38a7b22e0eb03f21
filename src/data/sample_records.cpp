// SPDX-License-Identifier: MIT
#include "data/sample_records.h"

#include <algorithm>
#include <unordered_map>

#include "base/files.h"
#include "base/text.h"

namespace kev {
namespace {

constexpr std::string_view kTemplateKey = "TEMPLATE=";
constexpr std::string_view kRecordFile = ".KEX";
constexpr char kPageMark = '>';

bool NamesTemplate(std::string_view line) {
  return CodePage::Default().EqualsIgnoringCase(line.substr(0, kTemplateKey.size()), kTemplateKey);
}

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

std::vector<RecordType> RecordTypesOf(std::string_view bytes, const CodePage& page) {
  std::vector<RecordType> types;
  std::unordered_map<std::string, std::size_t> byName;
  SampleRecordReader reader(bytes);
  while (const std::optional<SampleRecord> record = reader.Next()) {
    if (record->Name.empty()) continue;
    std::string key = page.Upper(record->Name);
    if (const auto known = byName.find(key); known != byName.end()) {
      ++types[known->second].Records;
    } else if (types.size() < kMostRecordTypes) {
      byName.emplace(std::move(key), types.size());
      types.push_back({std::string(record->Name), 1, record->Values.size()});
    }
  }
  return types;
}

std::vector<RecordType> ReadRecordTypes(const std::string& path, const CodePage& page) {
  const std::size_t ending = path.size() - std::min(path.size(), kRecordFile.size());
  if (!CodePage::Default().EqualsIgnoringCase(std::string_view(path).substr(ending), kRecordFile)) return {};
  const Result<std::string> bytes = ReadWholeFile(path);
  return bytes ? RecordTypesOf(*bytes, page) : std::vector<RecordType>();
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
