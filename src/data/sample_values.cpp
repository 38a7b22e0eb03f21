// SPDX-License-Identifier: MIT
#include "data/sample_values.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <unordered_set>

#include "base/text.h"
#include "data/sample_records.h"

namespace kev {
namespace {

constexpr std::size_t kPiece = 256UL * 1024;
constexpr std::size_t kLongestLine = 1000UL * 1000;
constexpr std::string_view kTemplateWord = "TEMPLATE";
constexpr char kPageMark = '>';
// Before the first value stand the empty part in front of the first delimiter and the name.
constexpr std::size_t kFirstValue = 3;

using LineUse = std::function<bool(std::string_view)>;

// What a line is made of may be spread over several pieces.
class LineBuffer {
 public:
  explicit LineBuffer(const LineUse& use) : use_(use) {}

  // False when no more is wanted.
  bool Take(std::string_view piece) {
    while (true) {
      const std::size_t end = piece.find('\n');
      if (end == std::string_view::npos) break;
      if (!Use(piece.substr(0, end))) return false;
      piece.remove_prefix(end + 1);
    }
    Keep(piece);
    return true;
  }
  // A last line needs no end.
  void Finish() { static_cast<void>(Use({})); }

 private:
  bool Use(std::string_view rest) {
    if (!kept_.empty()) Keep(rest);
    std::string_view line = kept_.empty() ? rest : std::string_view(kept_);
    if (line.ends_with('\r')) line.remove_suffix(1);
    line = Trim(line);
    const bool more = tooLong_ || line.size() > kLongestLine || line.empty() || use_(line);
    kept_.clear();
    tooLong_ = false;
    return more;
  }
  void Keep(std::string_view rest) {
    tooLong_ = tooLong_ || kept_.size() + rest.size() > kLongestLine;
    if (tooLong_) return kept_.clear();
    kept_ += rest;
  }

  const LineUse& use_;
  std::string kept_;
  bool tooLong_ = false;
};

bool IsSampleRecord(std::string_view line, const CodePage& page) {
  if (line.front() == kPageMark) return false;
  if (page.EqualsIgnoringCase(line.substr(0, kTemplateWord.size()), kTemplateWord)) return false;
  const auto delimiters = std::count(line.begin(), line.end(), line.front());
  return static_cast<std::size_t>(delimiters) < kMostRecordParts;
}

bool HasName(std::string_view line, std::string_view name, const CodePage& page) {
  return page.EqualsIgnoringCase(Trim(NthToken(line, 2, line.front())), name);
}

// False when the list is full.
bool Add(SampleValues& values, std::string_view value) {
  values.Items.emplace_back(value);
  return ++values.Records < kMostValuesShown;
}

void MarkFullList(SampleValues& values) {
  if (values.Records == kMostValuesShown) values.Items.emplace_back(kMoreValues);
}

std::string_view NameOfVariable(std::string_view line) {
  return line.starts_with('@') ? Trim(NthToken(line, 1, '=')) : std::string_view();
}

}  // namespace

bool ForEachSampleLine(const std::string& path, const LineUse& use) {
  std::error_code ignored;
  std::ifstream file;
  if (std::filesystem::is_regular_file(path, ignored)) file.open(path, std::ios::binary);
  if (!file.is_open()) return false;
  LineBuffer lines(use);
  std::vector<char> piece(kPiece);
  while (file.read(piece.data(), static_cast<std::streamsize>(piece.size())) || file.gcount() > 0) {
    if (!lines.Take({piece.data(), static_cast<std::size_t>(file.gcount())})) return true;
  }
  lines.Finish();
  return true;
}

SampleValues FieldValues(const std::string& path, std::string_view recordName, std::size_t field,
                         const CodePage& page) {
  SampleValues values;
  const std::string_view name = Trim(recordName);
  values.FileMissing = !ForEachSampleLine(path, [&](std::string_view line) {
    if (!HasName(line, name, page) || !IsSampleRecord(line, page)) return true;
    return Add(values, NthToken(line, field + kFirstValue, line.front()));
  });
  MarkFullList(values);
  return values;
}

SampleValues VariableValues(const std::string& path, std::string_view variable) {
  SampleValues values;
  values.FileMissing = !ForEachSampleLine(path, [&](std::string_view line) {
    if (NameOfVariable(line) != variable) return true;
    return Add(values, Trim(line.substr(std::min(line.find('='), line.size() - 1) + 1)));
  });
  MarkFullList(values);
  return values;
}

std::vector<std::string> VariableNames(const std::string& path) {
  std::vector<std::string> names;
  std::unordered_set<std::string> known;
  static_cast<void>(ForEachSampleLine(path, [&](std::string_view line) {
    const std::string name(NameOfVariable(line));
    if (!name.empty() && known.insert(name).second) names.push_back(name);
    return true;
  }));
  return names;
}

}  // namespace kev
