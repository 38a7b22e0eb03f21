// SPDX-License-Identifier: MIT
// The template that a fresh document is read from.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "base/result.h"

namespace kev {

inline constexpr std::string_view kSkeletonFile = "\\noname.kev";

// Three empty sections, each two steps high. `spacing` is kept as it is written; a text that counts as 0
// gives 200.
std::string SkeletonText(std::string_view spacing);

// Into `\noname.kev` of the folder. What went wrong, if anything did.
std::optional<FileFailure> WriteSkeleton(const std::string& folder, std::string_view spacing);

}  // namespace kev
