// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace kev {

// The name in a folder that is equal to another without regard to case.
using NameLookUp =
    std::function<std::optional<std::string>(const std::string& folder, const std::string& name)>;

// As FindFile in base/files.h, with another way to look names up.
std::optional<std::string> FindFile(std::string_view path, std::string_view folder,
                                    const NameLookUp& ignoringCase);

}  // namespace kev
