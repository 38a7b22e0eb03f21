// SPDX-License-Identifier: MIT
#include "template/template_check.h"

#include "base/files.h"
#include "base/text.h"

namespace kev {
namespace {

struct Traits {
  bool header = false, data = false, footer = false, bracketed = false;
  long mentions = 0;
};

void Look(Traits& traits, std::string_view line, const CodePage& page) {
  if (const std::string_view trimmed = Trim(line); trimmed.starts_with('[')) {
    traits.header |= page.EqualsIgnoringCase(trimmed, "[HEADER]");
    traits.data |= page.EqualsIgnoringCase(trimmed, "[DATA]");
    traits.footer |= page.EqualsIgnoringCase(trimmed, "[FOOTER]");
    traits.bracketed |= trimmed.ends_with(']');
  }
  if (line.find('@') == std::string_view::npos) return;
  traits.mentions += line.find(" @") != std::string_view::npos ? 1000 : 1;
}

// Three limits are tried and the last that holds wins, so that the first two never show.
char MentionDigit(long mentions) {
  char digit = '0';
  if (mentions < 1) digit = '1';
  if (mentions < 2000) digit = '2';
  if (mentions < 3000) digit = '3';
  return digit;
}

}  // namespace

std::string CheckTemplateBytes(std::string_view bytes, const CodePage& page) {
  Traits traits;
  while (!bytes.empty())
    Look(traits, TakeLine(bytes), page);
  std::string check;
  for (const bool trait : {traits.header, traits.data, traits.footer, traits.bracketed})
    check += trait ? '1' : '0';
  return check + MentionDigit(traits.mentions);
}

std::string CheckTemplate(const std::string& path) {
  const Result<std::string> bytes = ReadWholeFile(path);
  return CheckTemplateBytes(bytes ? *bytes : std::string());
}

Refusal RefusalOf(std::string_view check) {
  if (check.starts_with("000")) return Refusal::NoSections;
  if (check.starts_with('0')) return Refusal::NoHeader;
  // A "0" alone in either place says nothing: a good template with many fields ends in "0".
  if (check.ends_with("00")) return Refusal::WrongStructure;
  return Refusal::None;
}

}  // namespace kev
