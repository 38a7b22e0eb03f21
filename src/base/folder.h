// SPDX-License-Identifier: MIT
// What lies in a folder.
#pragma once

#include <string>
#include <vector>

namespace kev {

// Names of all kinds, in no order, without "." and ".."; none where the folder can't be read. The standard
// library's own way ends the process where memory is short.
std::vector<std::string> NamesIn(const std::string& folder);

}  // namespace kev
