// SPDX-License-Identifier: MIT
// The three folders that the program works with. Nothing here creates one. All paths are the system's own
// bytes.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/result.h"

namespace kev {

// The value of an environment variable; nothing where it is unset.
using Environment = std::function<std::optional<std::string>(std::string_view name)>;
Environment ProcessEnvironment();

struct DesignerFolders {
  std::string TempFolder;     // working files, the cache of remote pictures, recovery files
  std::string DataFolder;     // options, recent files and their thumbnails
  std::string ProgramFolder;  // the executable, language file, theme and images
};

DesignerFolders FindFolders(const Environment& environment, const std::string& programFolder);

// The folder of the running executable, links resolved.
std::string ExecutableFolder();

// The letter of the language in force, from the first file that gives one: `\activelang` in DataFolder, then
// the one beside the executable; else "E".
char FindActiveLanguage(const DesignerFolders& folders);
// For the next start: into `\activelang` of DataFolder. Only its line changes; the others stay.
std::optional<FileFailure> WriteActiveLanguage(const DesignerFolders& folders, char letter);

struct MissingFolder {
  std::string Path;
  int RoleText = 0;  // number of the text that says what needs the folder
};
// Those of the expected folders that are not there.
std::vector<MissingFolder> MissingFolders(const DesignerFolders& folders);

// "\Name" as a record or the theme writes it, in the folder.
std::string InTempFolder(const DesignerFolders& folders, std::string_view name);
std::string InDataFolder(const DesignerFolders& folders, std::string_view name);
std::string InProgramFolder(const DesignerFolders& folders, std::string_view name);

}  // namespace kev
