// SPDX-License-Identifier: MIT
#include "compiler.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <map>
#include <optional>
#include <set>
#include <utility>

#include "base/code_page.h"
#include "base/shift_text.h"
#include "utf8.h"

namespace kevlang {
namespace {

constexpr int kHighestNumber = 1300;
constexpr std::size_t kLongestText = 200;

struct Language {
  char Letter;
  std::string_view Name;
};
// English comes first: the reader falls back on the English line before a translation.
constexpr std::array<Language, 4> kLanguages = {
    {{'E', "English"}, {'S', "Spanish"}, {'I', "Italian"}, {'P', "Portuguese"}}};

struct Translation {
  int Line;
  std::string Bytes;
};

struct Entry {
  int Line = 0;
  int Number = 0;
  std::map<char, Translation> Texts;
};

class Compiler {
 public:
  explicit Compiler(std::string_view key) : key_(key) {}

  void TakeLine(std::string_view line);
  Compilation Finish();

 private:
  void Report(int line, std::string message) { result_.Faults.push_back({line, std::move(message)}); }
  void OpenEntry(std::string_view line);
  void TakeText(std::string_view line);
  void CloseEntry();
  void Emit(char letter, const Translation& text);
  std::optional<std::string> CheckedBytes(std::string_view utf8);
  void CheckBytes(std::string_view bytes);

  std::string_view key_;
  int line_ = 0;
  std::optional<Entry> open_;
  std::set<int> numbers_;
  Compilation result_;
};

std::string Hexadecimal(char32_t character) {
  std::array<char, 8> digits{};
  const auto end =
      std::to_chars(digits.data(), digits.data() + digits.size(), std::uint32_t{character}, 16).ptr;
  std::string text(digits.data(), end);
  std::transform(text.begin(), text.end(), text.begin(),
                 [](char c) { return c >= 'a' ? static_cast<char>(c - 32) : c; });
  return "U+" + std::string(text.size() < 4 ? 4 - text.size() : 0, '0') + text;
}

// The page lets the bytes that it leaves undefined stand for control characters; a text has no use for those.
std::optional<char> PageByte(char32_t character) {
  const bool undefined = character >= 0x80 && character < 0xA0;
  return undefined ? std::nullopt : kev::CodePage::Default().FromUnicode(character);
}

std::string_view LanguageName(char letter) {
  const auto* const found =
      std::find_if(kLanguages.begin(), kLanguages.end(),
                   [letter](const Language& language) { return language.Letter == letter; });
  return found == kLanguages.end() ? std::string_view() : found->Name;
}

void Compiler::TakeLine(std::string_view line) {
  ++line_;
  if (line.empty() || line.front() == '#') {
    return;
  }
  if (line.front() == '[') {
    CloseEntry();
    OpenEntry(line);
  } else {
    TakeText(line);
  }
}

void Compiler::OpenEntry(std::string_view line) {
  open_ = Entry{line_, -1, {}};
  int number = 0;
  const auto [end, error] = std::from_chars(line.data() + 1, line.data() + line.size(), number);
  if (error != std::errc() || number < 0 || std::string_view(end, line.data() + line.size()) != "]") {
    Report(line_, "an entry begins with a number between [ and ]");
    return;
  }
  if (number > kHighestNumber) {
    Report(line_, "the number " + std::to_string(number) + " is above " + std::to_string(kHighestNumber));
    return;
  }
  if (!numbers_.insert(number).second) {
    Report(line_, "the number " + std::to_string(number) + " is given twice");
    return;
  }
  open_->Number = number;
}

void Compiler::TakeText(std::string_view line) {
  const char letter = line.front();
  const std::string_view language = LanguageName(letter);
  if (language.empty() || (line.size() > 1 && line[1] != ' ')) {
    Report(line_, "a line is a comment, an entry, or one of the letters E, S, I, P with a blank and a text");
    return;
  }
  if (!open_) {
    Report(line_, "a text stands before the first entry");
    return;
  }
  const std::optional<std::string> bytes = CheckedBytes(line.substr(std::min<std::size_t>(2, line.size())));
  if (!open_->Texts.try_emplace(letter, Translation{line_, bytes.value_or("")}).second) {
    Report(line_, "the " + std::string(language) + " text is given twice");
  }
}

// The bytes of a text; what is wrong with it is reported. Nothing when it has no bytes.
std::optional<std::string> Compiler::CheckedBytes(std::string_view utf8) {
  std::string bytes;
  while (!utf8.empty()) {
    const std::optional<char32_t> character = TakeCodePoint(utf8);
    if (!character) {
      Report(line_, "the text is not UTF-8");
      return std::nullopt;
    }
    const std::optional<char> byte = PageByte(*character);
    if (!byte) {
      Report(line_, "the character " + Hexadecimal(*character) + " is not in Windows-1252");
      return std::nullopt;
    }
    bytes += *byte;
  }
  CheckBytes(bytes);
  return bytes;
}

void Compiler::CheckBytes(std::string_view bytes) {
  if (bytes.empty()) {
    Report(line_, "the text is empty");
    return;
  }
  if (bytes.front() == ' ' || bytes.back() == ' ') {
    Report(line_, "the text has a blank at its beginning or end");
  }
  if (bytes.size() > kLongestText) {
    Report(line_, "the text has " + std::to_string(bytes.size()) + " characters; " +
                      std::to_string(kLongestText) + " are allowed");
  }
  const auto isControl = [](char c) { return static_cast<unsigned char>(c) < 32 || c == 127; };
  if (std::any_of(bytes.begin(), bytes.end(), isControl)) {
    Report(line_, "the text holds a control character");
  }
  if (bytes.find_first_of("!#") != std::string_view::npos) {
    Report(line_, "the text holds ! or #, which the file cannot keep");
  }
}

void Compiler::CloseEntry() {
  if (!open_) {
    return;
  }
  for (const Language& language : kLanguages) {
    const auto found = open_->Texts.find(language.Letter);
    if (found == open_->Texts.end()) {
      Report(open_->Line, "the " + std::string(language.Name) + " text is missing");
    } else if (open_->Number >= 0) {
      Emit(language.Letter, found->second);
    }
  }
  ++result_.Entries;
  open_.reset();
}

void Compiler::Emit(char letter, const Translation& text) {
  const std::string number = std::to_string(open_->Number);
  const std::string line = letter + std::string(4 - number.size(), '0') + number + ' ' + text.Bytes;
  const std::string scrambled = kev::UnshiftText(line, key_);
  if (kev::ShiftText(scrambled, key_) != line) {
    Report(text.Line, "the line does not decode back to itself: the key loses one of its characters");
  }
  result_.File += scrambled + "\r\n";
}

Compilation Compiler::Finish() {
  CloseEntry();
  if (result_.Entries == 0) {
    Report(line_, "there is no entry");
  }
  std::stable_sort(result_.Faults.begin(), result_.Faults.end(),
                   [](const Fault& left, const Fault& right) { return left.Line < right.Line; });
  return std::move(result_);
}

}  // namespace

Compilation Compile(std::string_view source, std::string_view key) {
  constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
  if (source.starts_with(kByteOrderMark)) {
    source.remove_prefix(kByteOrderMark.size());
  }
  Compiler compiler(key);
  while (!source.empty()) {
    const std::size_t end = source.find('\n');
    std::string_view line = source.substr(0, end);
    source.remove_prefix(end == std::string_view::npos ? source.size() : end + 1);
    if (line.ends_with('\r')) {
      line.remove_suffix(1);
    }
    compiler.TakeLine(line);
  }
  return compiler.Finish();
}

}  // namespace kevlang
