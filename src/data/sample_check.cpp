// SPDX-License-Identifier: MIT
#include "data/sample_check.h"

#include <algorithm>

#include "base/code_page.h"
#include "base/files.h"
#include "base/text.h"

namespace kev {
namespace {

constexpr std::string_view kTemplateKey = "TEMPLATE=";
constexpr std::size_t kEndingLength = 4;

bool NamesTemplate(std::string_view line) {
  return CodePage::Default().Upper(line.substr(0, kTemplateKey.size())) == kTemplateKey;
}

SampleFault FaultOfRecord(std::string_view line) {
  if (NamesTemplate(line)) return SampleFault::BadLine;
  if (line.front() == '>') return SampleFault::None;
  if (line.front() != line.back()) return SampleFault::BadLine;
  // Delimiters stand around the name and behind each value.
  const auto delimiters = static_cast<std::size_t>(std::count(line.begin(), line.end(), line.front()));
  return delimiters > kMostSampleValues + 2 ? SampleFault::TooLong : SampleFault::None;
}

SampleFault FaultOfVariable(std::string_view line) {
  const bool good = line.starts_with('@') && line.find('=') != std::string_view::npos;
  return good ? SampleFault::None : SampleFault::BadVariable;
}

}  // namespace

SampleKind SampleKindOf(std::string_view name) {
  const std::size_t ending = std::min(name.size(), kEndingLength);
  const std::string capitals = CodePage::Default().Upper(name.substr(name.size() - ending));
  if (capitals == ".KEX") return SampleKind::Kex;
  return capitals == ".KED" ? SampleKind::Ked : SampleKind::Other;
}

SampleCheck CheckSampleText(std::string_view bytes, SampleKind kind) {
  if (kind == SampleKind::Other) return {SampleFault::WrongName, 0, {}};
  bool headSeen = false;
  for (std::size_t number = 1; !bytes.empty(); ++number) {
    const std::string_view line = Trim(TakeLine(bytes));
    if (line.empty()) continue;
    if (!headSeen) {
      if (!NamesTemplate(line)) return {SampleFault::NoHead, number, {}};
      headSeen = true;
      continue;
    }
    const SampleFault fault = kind == SampleKind::Kex ? FaultOfRecord(line) : FaultOfVariable(line);
    if (fault != SampleFault::None) return {fault, number, {}};
  }
  if (!headSeen) return {SampleFault::NoHead, 0, {}};
  return {};
}

SampleCheck CheckSampleFile(const std::string& path) {
  const SampleKind kind = SampleKindOf(path);
  if (kind == SampleKind::Other) return {SampleFault::WrongName, 0, {}};
  if (!FileExists(path)) return {};
  const Result<std::string> bytes = ReadWholeFile(path);
  if (!bytes) return {SampleFault::NotReadable, 0, bytes.Error().reason};
  return CheckSampleText(*bytes, kind);
}

}  // namespace kev
