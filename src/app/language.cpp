// SPDX-License-Identifier: MIT
#include "app/language.h"

#include <charconv>
#include <optional>
#include <utility>

#include "base/files.h"
#include "base/shift_text.h"
#include "base/text.h"

namespace kev {
namespace {

// A decoded line: the letter, four places for the number, one place that is skipped, the text.
constexpr std::size_t kNumberPlace = 1;
constexpr std::size_t kNumberLength = 4;
constexpr std::size_t kTextPlace = 6;

std::optional<int> LineNumber(std::string_view decoded) {
  if (decoded.size() < kNumberPlace + kNumberLength) {
    return std::nullopt;
  }
  const std::string_view digits = Trim(decoded.substr(kNumberPlace, kNumberLength));
  if (digits.empty() || digits.find_first_not_of("0123456789") != std::string_view::npos) {
    return std::nullopt;
  }
  int number = 0;
  std::from_chars(digits.data(), digits.data() + digits.size(), number);
  return number;
}

bool IsLetter(char c) {
  return c >= 'A' && c <= 'Z';
}

FileFailure Corrupted() {
  return {{}, "not a language file"};
}

std::string LineText(std::string_view decoded) {
  return std::string(decoded.size() > kTextPlace ? decoded.substr(kTextPlace) : std::string_view());
}

}  // namespace

void LanguageTexts::SetText(int number, std::string text) {
  texts_.at(static_cast<std::size_t>(number)) = std::move(text);
}

Result<LanguageTexts> LoadLanguageBytes(std::string_view bytes, char activeLanguage) {
  LanguageTexts texts;
  std::string fallback;
  bool anyLine = false;
  for (const std::string_view scrambled : SplitLines(bytes)) {
    const std::string line = ShiftText(Trim(scrambled), kLanguageFileKey);
    if (line.starts_with('E')) {
      fallback = LineText(line);
    }
    const std::optional<int> number = LineNumber(line);
    anyLine = anyLine || (number && IsLetter(line.front()));
    if (number && line.front() == activeLanguage) {
      if (*number > kHighestTextNumber) return Corrupted();
      const std::string text = LineText(line);
      texts.SetText(*number, text.empty() ? fallback : text);
    }
  }
  if (!anyLine) return Corrupted();
  return texts;
}

Result<LanguageTexts> LoadLanguage(const std::string& path, char activeLanguage) {
  const Result<std::string> bytes = ReadWholeFile(path);
  if (!bytes) {
    return bytes.Error();
  }
  Result<LanguageTexts> texts = LoadLanguageBytes(*bytes, activeLanguage);
  if (!texts) return FileFailure{path, texts.Error().reason};
  return texts;
}

std::string_view HelpLanguageWord(char activeLanguage) {
  return activeLanguage == 'S' ? "esp" : "eng";
}

}  // namespace kev
