// SPDX-License-Identifier: MIT
// The numbered texts of the program and the file Kev.lng that they come from.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/result.h"

namespace kev {

inline constexpr int kHighestTextNumber = 1300;

// All words that the program shows, by number (see base/text_numbers.h), as bytes of Windows-1252 whatever
// the code page of the templates is. A number that the file does not give is an empty text.
class LanguageTexts {
 public:
  LanguageTexts() : texts_(kHighestTextNumber + 1) {}

  // Both throw std::out_of_range for a number outside 0 to kHighestTextNumber.
  const std::string& Text(int number) const { return texts_.at(static_cast<std::size_t>(number)); }
  void SetText(int number, std::string text);

 private:
  std::vector<std::string> texts_;
};

// The one message that cannot stand in the file: whatever keeps LoadLanguage from reading it, the program
// shows this and ends.
inline constexpr std::string_view kLanguageErrorTitle = "Error loading";
inline constexpr std::string_view kLanguageErrorText =
    "Kev.lng file doesn't exist or is corrupted. Program won't start.";

// Reads a language file for `activeLanguage` (one upper-case letter: E, S, I or P). A text whose translation
// is empty is that of the English line before it. A language without lines gives empty texts; lines that mean
// nothing are passed over. Fails where the file can't be read as a whole, and where it is no language file:
// when no line of it holds a letter and a number, or one of the active language a number above
// kHighestTextNumber.
Result<LanguageTexts> LoadLanguage(const std::string& path, char activeLanguage);

// The same for what such a file holds; any bytes will do.
Result<LanguageTexts> LoadLanguageBytes(std::string_view bytes, char activeLanguage);

// Language word in the address of the documentation: "esp" for Spanish, "eng" for every other language.
std::string_view HelpLanguageWord(char activeLanguage);

}  // namespace kev
