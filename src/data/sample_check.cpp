// SPDX-License-Identifier: MIT
#include "data/sample_check.h"

#include <algorithm>
#include <filesystem>

#include "base/code_page.h"
#include "base/text.h"
#include "template/sample_copy.h"

namespace kev {
namespace {

constexpr std::size_t kEndingLength = 4;
// What editors put in front of a text in UTF-8 and in the two orders of UTF-16.
constexpr std::string_view kMarks[] = {"\xEF\xBB\xBF", "\xFF\xFE", "\xFE\xFF"};

SampleFault FaultOfRecord(std::string_view line, bool cut) {
  if (cut || NamesTemplate(line)) return SampleFault::BadLine;
  if (line.front() == '>') return SampleFault::None;
  if (line.front() != line.back()) return SampleFault::BadLine;
  // Delimiters stand around the name and behind each value.
  constexpr std::size_t kMostDelimiters = kMostSampleValues + 2;
  if (line.size() <= kMostDelimiters) return SampleFault::None;
  const auto delimiters = static_cast<std::size_t>(std::count(line.begin(), line.end(), line.front()));
  return delimiters > kMostDelimiters ? SampleFault::TooLong : SampleFault::None;
}

SampleFault FaultOfVariable(std::string_view line, bool cut) {
  const bool good = !cut && line.starts_with('@') && line.find('=') != std::string_view::npos;
  return good ? SampleFault::None : SampleFault::BadVariable;
}

// A file whose folder can't be looked into may well be there.
bool IsMissing(const std::string& path) {
  std::error_code error;
  return std::filesystem::status(path, error).type() == std::filesystem::file_type::not_found;
}

}  // namespace

SampleKind SampleKindOf(std::string_view name) {
  const std::size_t ending = std::min(name.size(), kEndingLength);
  const std::string capitals = CodePage::Default().Upper(name.substr(name.size() - ending));
  if (capitals == ".KEX") return SampleKind::Kex;
  return capitals == ".KED" ? SampleKind::Ked : SampleKind::Other;
}

std::string SampleCode(const SampleCheck& check) {
  switch (check.Fault) {
    case SampleFault::WrongName:
      return "1";
    case SampleFault::NoHead:
      return "2";
    case SampleFault::BadLine:
    case SampleFault::TooLong:
      return "3:" + std::to_string(check.Line);
    case SampleFault::BadVariable:
      return "4";
    case SampleFault::None:
    case SampleFault::NotReadable:
    case SampleFault::Stopped:
      break;
  }
  return {};
}

bool SampleLineCheck::Add(std::string_view line, bool cut) {
  ++number_;
  hasContent_ = false;
  if (line.empty() && !cut) return true;
  if (!headSeen_) return AddHead(line, cut);
  const SampleFault fault = FaultOf(line, cut);
  hasContent_ = fault == SampleFault::None;
  if (!hasContent_) result_ = {fault, number_};
  return hasContent_;
}

bool SampleLineCheck::AddHead(std::string_view line, bool cut) {
  headSeen_ = NamesTemplate(line);
  if (headSeen_ && cut) result_ = {FaultOf({}, cut), number_};
  if (headSeen_) return !cut;
  result_ = {SampleFault::NoHead, number_};
  result_.UnicodeMark = std::any_of(std::begin(kMarks), std::end(kMarks),
                                    [line](std::string_view mark) { return line.starts_with(mark); });
  return false;
}

SampleFault SampleLineCheck::FaultOf(std::string_view line, bool cut) const {
  // Of a line of millions of blanks nothing is left behind trimming.
  if (line.empty()) return kind_ == SampleKind::Kex ? SampleFault::BadLine : SampleFault::BadVariable;
  return kind_ == SampleKind::Kex ? FaultOfRecord(line, cut) : FaultOfVariable(line, cut);
}

void SampleLineCheck::End() {
  if (!headSeen_ && result_.Fault == SampleFault::None) result_.Fault = SampleFault::NoHead;
}

SampleCheck CheckSampleText(std::string_view bytes, SampleKind kind) {
  if (kind == SampleKind::Other) return {SampleFault::WrongName};
  SampleLineCheck check(kind);
  while (!bytes.empty()) {
    const std::string_view line = TakeLine(bytes);
    const bool cut = line.size() > LineReader::kLongestLine;
    if (!check.Add(Trim(cut ? line.substr(0, LineReader::kKeptOfCutLine) : line), cut)) return check.Result();
  }
  check.End();
  return check.Result();
}

SampleCheck CheckSampleFile(const std::string& path, LineReader::Watch watch) {
  const SampleKind kind = SampleKindOf(path);
  if (kind == SampleKind::Other) return {SampleFault::WrongName};
  if (IsMissing(path)) return {};
  Result<LineReader> lines = LineReader::Open(path, std::move(watch));
  if (!lines) return {SampleFault::NotReadable, 0, lines.Error().reason};
  SampleLineCheck check(kind);
  while (lines->Next()) {
    if (!check.Add(Trim(lines->Line()), lines->Cut())) return check.Result();
  }
  if (lines->Failure()) return {SampleFault::NotReadable, 0, lines->Failure()->reason};
  if (lines->Stopped()) return {SampleFault::Stopped, lines->Number()};
  check.End();
  return check.Result();
}

}  // namespace kev
