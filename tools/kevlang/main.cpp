// SPDX-License-Identifier: MIT
// kevlang: compiles the readable source of the program's texts to Kev.lng.
#include <algorithm>
#include <iostream>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/files.h"
#include "base/shift_text.h"
#include "compiler.h"

namespace {

constexpr int kDone = 0;
constexpr int kRefused = 1;
constexpr int kWrongUsage = 2;

constexpr std::string_view kUsage =
    "Usage: kevlang [--key DIGITS] SOURCE OUTPUT\n"
    "Compiles the language source SOURCE to the language file OUTPUT.\n"
    "\n"
    "  --key DIGITS  scramble with these 1 to 20 digits; the program reads only files of its own key,\n"
    "                so this serves to try the texts with another key before the program gets it\n"
    "  --help        show this text\n"
    "\n"
    "Exit status: 0 the file is written, 1 the source is refused or a file fails, 2 wrong usage.\n";

struct Arguments {
  std::string Key{kev::kLanguageFileKey};
  std::string Source;
  std::string Output;
};

bool IsKey(std::string_view text) {
  return !text.empty() && text.size() <= kev::kShiftKeyLimit &&
         text.find_first_not_of("0123456789") == std::string_view::npos;
}

std::optional<Arguments> ParseArguments(std::vector<std::string> words) {
  Arguments arguments;
  if (words.size() >= 2 && words[0] == "--key") {
    arguments.Key = words[1];
    words.erase(words.begin(), words.begin() + 2);
  }
  if (words.size() != 2 || !IsKey(arguments.Key) || words[0].starts_with("-") || words[1].starts_with("-")) {
    return std::nullopt;
  }
  arguments.Source = words[0];
  arguments.Output = words[1];
  return arguments;
}

int Refuse(const kev::FileFailure& failure) {
  std::cerr << "kevlang: " << failure.path << ": " << failure.reason << '\n';
  return kRefused;
}

int Run(const Arguments& arguments) {
  const kev::Result<std::string> source = kev::ReadWholeFile(arguments.Source);
  if (!source) return Refuse(source.Error());
  const kevlang::Compilation compilation = kevlang::Compile(*source, arguments.Key);
  for (const kevlang::Fault& fault : compilation.Faults) {
    std::cerr << arguments.Source << ':' << fault.Line << ": " << fault.Message << '\n';
  }
  if (!compilation.Faults.empty()) {
    return kRefused;
  }
  const std::optional<kev::FileFailure> failure = kev::WriteWholeFile(arguments.Output, compilation.File);
  return failure ? Refuse(*failure) : kDone;
}

}  // namespace

int main(int count, char** words) {
  const std::vector<std::string> list(words + 1, words + std::max(count, 1));
  if (list.size() == 1 && list[0] == "--help") {
    std::cout << kUsage;
    return kDone;
  }
  const std::optional<Arguments> arguments = ParseArguments(list);
  if (!arguments) {
    std::cerr << kUsage;
    return kWrongUsage;
  }
  return Run(*arguments);
}
