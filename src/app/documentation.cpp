// SPDX-License-Identifier: MIT
#include "app/documentation.h"

#include <array>

#include "app/language.h"
#include "base/files.h"

namespace kev {

namespace {

// Beside the program, and where a package puts documents.
constexpr auto kPlaces = std::to_array<std::string_view>(
    {"docs/index.html", "docs/README.md", "../share/doc/kev/index.html", "../share/doc/kev/README.md",
     "../share/doc/kev-visual-editor/README.md"});

}  // namespace

std::string DocumentationAddress(std::string_view host, char language) {
  return "https://" + std::string(host) + "/kvedocs?" + std::string(HelpLanguageWord(language));
}

std::optional<std::string> InstalledDocumentation(std::string_view programFolder) {
  for (const std::string_view place : kPlaces) {
    std::string path = AbsolutePath(std::string(programFolder) + "/" + std::string(place));
    if (FileExists(path)) return path;
  }
  return std::nullopt;
}

}  // namespace kev
