// SPDX-License-Identifier: MIT
// The program that the desktop knows for the scheme of an address. It is looked up here, because the usual
// openers make a url of the address first, and what is registered then gets another text.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/host.h"

namespace kev {

// Where the desktop keeps its choices; the folder and the desktop that come first count most.
struct DesktopSettings {
  std::vector<std::string> ConfigFolders;  // hold "mimeapps.list"
  std::vector<std::string> DataFolders;    // hold "applications"
  std::vector<std::string> Desktops;       // in small letters
};

// From XDG_CONFIG_HOME, XDG_DATA_HOME and their companions, or their defaults.
DesktopSettings DesktopSettingsOf(
    const std::function<std::optional<std::string>(std::string_view)>& variables);

// The user's choice for the scheme, else the first program that says it takes it; nothing where there is
// none. The address becomes one argument, exactly as it stands.
std::optional<ProgramStart> HandlerOf(std::string_view address, const DesktopSettings& settings);

// The program for plain text, told to open the file. For templates: the desktop's program for those may well
// be the designer itself. Programs that want a terminal are passed over.
std::optional<ProgramStart> TextHandlerOf(std::string_view path, const DesktopSettings& settings);

// What the "Exec" of a desktop entry starts; a line that names no place for the address gets it behind it.
std::optional<ProgramStart> StartOfExec(std::string_view exec, std::string_view address);

}  // namespace kev
