// SPDX-License-Identifier: MIT
// The records of a .kex sample file: which types of them there are, and which fields each gives. A line is a
// record when it begins and ends with the same character, which parts its values: "|ITEMS|12|bolt|".
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "base/code_page.h"
#include "base/line_reader.h"

namespace kev {

// No line may have more parts than this, so a record has at most 197 values.
inline constexpr std::size_t kMostRecordParts = 200;
inline constexpr std::size_t kMostRecordTypes = 150;

struct SampleRecord {
  std::string_view Name;  // without the blanks around it; empty for a line of one character
  std::vector<std::string_view> Values;
  std::size_t Line = 0;  // from 1; empty lines count
};

// Goes through the records of a file one by one. Page marks, empty lines and lines that are no record are
// passed over. A file whose first line with a text does not begin with TEMPLATE= has no records.
class SampleRecordReader {
 public:
  // The bytes outlive the reader and its records.
  explicit SampleRecordReader(std::string_view bytes);
  std::optional<SampleRecord> Next();

 private:
  std::string_view TakeTrimmedLine();

  std::string_view rest_;
  std::size_t line_ = 0;
};

struct RecordType {
  std::string Name;         // as the first record of the type spells it
  std::size_t Records = 0;  // how many of them the file has
  std::size_t Values = 0;   // of the first one

  bool operator==(const RecordType&) const = default;
};

// The record types of the lines that are added, in the order in which they come first. Names are the same in
// any case; records without a name are of no type, and types behind the 150th are left out.
class RecordTypeTable {
 public:
  // The page outlives the table.
  explicit RecordTypeTable(const CodePage& page) : page_(page) {}

  // A trimmed line that begins and ends with the same character.
  void Add(std::string_view line);
  const std::vector<RecordType>& Types() const { return types_; }
  std::vector<RecordType> Take() { return std::move(types_); }

 private:
  RecordType* Find(std::string_view name);

  const CodePage& page_;
  std::vector<RecordType> types_;
  std::unordered_map<std::string, std::size_t> byName_;
  // Records of few types follow each other: where the last one with such a name was found, counted from 1.
  std::array<std::uint8_t, 32> recent_{};
};

std::vector<RecordType> RecordTypesOf(std::string_view bytes, const CodePage& page);
// None for a path that is empty, does not end in ".kex" or can't be read: who needs the types then offers
// none. Lines that are no records are passed over.
std::vector<RecordType> ReadRecordTypes(const std::string& path, const CodePage& page);

// "@Field01", "@Field02" and so on, one for each value. `word` is the user's word for a field.
std::vector<std::string> FieldNames(std::size_t values, std::string_view word);

// The fields of a head line, "[ITEMS:@code,@text]": what stands behind its last ":".
std::vector<std::string> FieldsOfHead(std::string_view head);

}  // namespace kev
