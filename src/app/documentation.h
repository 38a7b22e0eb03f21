// SPDX-License-Identifier: MIT
// Where the help command leads.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace kev {

// The page of the documentation site for a language letter. The host comes from the build.
std::string DocumentationAddress(std::string_view host, char language);

// The documents that were installed with the program, for a build without a documentation site; nothing when
// they are not there. Native bytes.
std::optional<std::string> InstalledDocumentation(std::string_view programFolder);

}  // namespace kev
