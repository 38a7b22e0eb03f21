// SPDX-License-Identifier: MIT
// Any bytes as one of the small files that the program reads at its start. The first byte chooses: what the
// user sets by hand, the theme, the counter of the runs, the language in force, the options.
#include "app/folders.h"
#include "app/options.h"
#include "app/theme.h"
#include "document/papers.h"
#include "fuzz_support.h"

namespace {

using namespace kev;
using fuzz::Require;
using fuzz::Scratch;

void ReadUserSettings(std::string_view bytes) {
  const UserSettings settings = LoadUserSettings(Scratch().Made("KEV.INI", bytes));
  Require(LookupPaper(settings.DefaultPaperSize).has_value());
  Require(settings.Page != nullptr && !settings.DefaultEditor.empty() && settings.Unknown.size() <= 3);
}

void ReadTheme(std::string_view bytes) {
  const Theme theme = LoadTheme(Scratch().Made("md1.trp", bytes));
  for (const std::string& value : theme.Values)
    Require(value.size() <= bytes.size());
  Require(theme.ToolbarColour().value_or(0) <= 0xFFFFFF);
}

void CountRun(std::string_view bytes) {
  const std::string path = Scratch().Made("SN.DAT", bytes);
  const int number = NextSession(path);
  const int next = NextSession(path);
  Require(number >= 1 && (next == 1 || next - 1 == number));
}

void ReadActiveLanguage(std::string_view bytes) {
  static_cast<void>(Scratch().Made("activelang", bytes));
  const DesignerFolders folders{Scratch().Path(), Scratch().Path(), Scratch().Path("nothing")};
  // Any letter may stand there; a language that nothing is known of has no texts.
  const char letter = FindActiveLanguage(folders);
  Require(letter >= 'A' && letter <= 'Z');
  Require(!WriteActiveLanguage(folders, 'P') && FindActiveLanguage(folders) == 'P');
}

void ReadOptionsFile(std::string_view bytes) {
  const std::string path = Scratch().Made("LASTRV.DAT", bytes);
  const DesignerOptions options = LoadOptions(path);
  Require(options == ReadOptions(bytes));
  DeleteFileIfThere(path);
  Require(LoadOptions(path) == DesignerOptions{} && FileExists(path));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  const std::string_view bytes = fuzz::TextOf(data + 1, size - 1);
  switch (data[0]) {
    case 'u':
      ReadUserSettings(bytes);
      break;
    case 't':
      ReadTheme(bytes);
      break;
    case 's':
      CountRun(bytes);
      break;
    case 'l':
      ReadActiveLanguage(bytes);
      break;
    default:
      ReadOptionsFile(bytes);
  }
  return 0;
}
