// SPDX-License-Identifier: MIT
#include "app/folders.h"

#include <array>
#include <cstdlib>
#include <filesystem>

#include "base/code_page.h"
#include "base/files.h"
#include "base/key_file.h"
#include "base/text.h"
#include "base/text_numbers.h"

namespace kev {
namespace {

constexpr std::string_view kOwnFolder = "\\Kev";
constexpr std::string_view kLanguageSwitch = "\\activelang";

// The first of the variables that is set and not empty.
std::string FirstOf(const Environment& environment, const std::array<std::string_view, 2>& names) {
  for (const std::string_view name : names) {
    if (const auto value = environment(name); value && !value->empty()) return *value;
  }
  return {};
}

constexpr std::string_view kLanguageKey = "ACTIVELANG";

bool IsLanguageLetter(char c) {
  return c >= 'A' && c <= 'Z';
}

// The text with its first line of the key replaced; the line goes before all others where there is none,
// since only the first lines of a file are looked at.
std::string WithLanguage(std::string_view bytes, char letter) {
  const std::size_t number = KeyFile(bytes).Line(kLanguageKey);
  std::string_view rest = bytes;
  for (std::size_t line = 1; line < number; ++line)
    TakeLine(rest);
  const std::string_view before = bytes.substr(0, bytes.size() - rest.size());
  if (number != 0) TakeLine(rest);
  std::string text(before);
  text.append(kLanguageKey).append("=").append(1, letter).append("\r\n");
  return text.append(rest);
}

}  // namespace

Environment ProcessEnvironment() {
  return [](std::string_view name) -> std::optional<std::string> {
    const char* value = std::getenv(std::string(name).c_str());
    if (value == nullptr) return std::nullopt;
    return std::string(value);
  };
}

DesignerFolders FindFolders(const Environment& environment, const std::string& programFolder) {
  DesignerFolders folders;
  folders.ProgramFolder = programFolder;
  folders.TempFolder = JoinPath(FirstOf(environment, {"TEMP", "TMP"}), kOwnFolder);
  std::string data = ReadKey(InProgramFolder(folders, kLanguageSwitch), "DATADIR");
  if (data.empty()) data = FirstOf(environment, {"appdata", "APPDATA"});
  folders.DataFolder = JoinPath(data, kOwnFolder);
  return folders;
}

std::string ExecutableFolder() {
  std::error_code ignored;
  const std::filesystem::path executable = std::filesystem::canonical("/proc/self/exe", ignored);
  return FolderOf(executable.string());
}

char FindActiveLanguage(const DesignerFolders& folders) {
  for (const std::string& folder : {folders.DataFolder, folders.ProgramFolder}) {
    const std::string value = ReadKey(JoinPath(folder, kLanguageSwitch), kLanguageKey);
    const char letter = value.empty() ? '\0' : CodePage::Default().Upper(value.front());
    if (IsLanguageLetter(letter)) return letter;
  }
  return 'E';
}

std::optional<FileFailure> WriteActiveLanguage(const DesignerFolders& folders, char letter) {
  const std::string path = InDataFolder(folders, kLanguageSwitch);
  const Result<std::string> bytes = ReadWholeFile(path);
  // What can't be read can't be kept either.
  if (!bytes && FileExists(path)) return bytes.Error();
  return WriteWholeFile(path, WithLanguage(bytes ? *bytes : std::string(), letter));
}

std::vector<MissingFolder> MissingFolders(const DesignerFolders& folders) {
  std::vector<MissingFolder> expected = {
      {folders.TempFolder, kTextFolderRoleWork},
      {InTempFolder(folders, "\\Cache"), kTextFolderRoleCache},
      {InTempFolder(folders, "\\Temp"), kTextFolderRoleUnpacking},
      {folders.DataFolder, kTextFolderRoleData},
      {InDataFolder(folders, "\\temp"), kTextFolderRoleRecent},
  };
  std::erase_if(expected, [](const MissingFolder& folder) { return FolderExists(folder.Path); });
  return expected;
}

std::string InTempFolder(const DesignerFolders& folders, std::string_view name) {
  return JoinPath(folders.TempFolder, name);
}
std::string InDataFolder(const DesignerFolders& folders, std::string_view name) {
  return JoinPath(folders.DataFolder, name);
}
std::string InProgramFolder(const DesignerFolders& folders, std::string_view name) {
  return JoinPath(folders.ProgramFolder, name);
}

}  // namespace kev
