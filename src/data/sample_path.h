// SPDX-License-Identifier: MIT
// The two parts of a path to sample data, as texts: the path may come from a template of another system.
#pragma once

#include <string_view>

namespace kev {

// Parted behind the last "\" or, where there is none, behind the last "/". FilePath keeps that separator and
// is empty where there is none.
std::string_view FilePath(std::string_view path);
std::string_view FileBaseName(std::string_view path);

}  // namespace kev
