// SPDX-License-Identifier: MIT
// Any bytes as a compiled language file.
#include <stdexcept>

#include "app/language.h"
#include "base/shift_text.h"
#include "fuzz_support.h"

namespace {

using namespace kev;
using fuzz::Require;

void CheckTexts(const LanguageTexts& texts, std::size_t longest) {
  for (int number = 0; number <= kHighestTextNumber; ++number)
    Require(texts.Text(number).size() <= longest);
}

void CheckFile(std::string_view bytes) {
  const std::string path = fuzz::Scratch().Made("Kev.lng", bytes);
  const Result<LanguageTexts> texts = LoadLanguage(path, 'E');
  Require(static_cast<bool>(texts) == static_cast<bool>(LoadLanguageBytes(bytes, 'E')));
  if (!texts) Require(texts.Error().path == path);
  Require(!LoadLanguage(fuzz::Scratch().Path("nothing"), 'E'));
}

// A blank stays one, and whatever becomes one does not come back.
void CheckShift(std::string_view bytes) {
  Require(ShiftText(bytes, kLanguageFileKey).size() == bytes.size());
  const std::string_view key = bytes.substr(0, bytes.find('\n'));
  try {
    Require(UnshiftText(bytes, key).size() == bytes.size());
    Require(key.size() <= kShiftKeyLimit);
  } catch (const std::out_of_range&) {
    Require(key.size() > kShiftKeyLimit);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes = fuzz::TextOf(data, size);
  for (const char language : {'E', 'S', '\0'}) {
    if (const Result<LanguageTexts> texts = LoadLanguageBytes(bytes, language)) CheckTexts(*texts, size);
    Require(HelpLanguageWord(language) == (language == 'S' ? "esp" : "eng"));
  }
  if (fuzz::IsOneOfEight(bytes)) CheckFile(bytes);
  CheckShift(bytes);
  return 0;
}
