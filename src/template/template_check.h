// SPDX-License-Identifier: MIT
// Tells what a file is without loading it.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "base/code_page.h"

namespace kev {

// Five characters: "1" or "0" for each of [HEADER], [DATA], [FOOTER] and any bracketed line, then a digit
// that tells how much the file mentions fields. A file that cannot be read is like an empty one.
std::string CheckTemplate(const std::string& path);
std::string CheckTemplateBytes(std::string_view bytes, const CodePage& page = CodePage::Default());

enum class Refusal : std::uint8_t { None, NoSections, NoHeader, WrongStructure };

// What start-up and the open commands make of the five characters. The messages are 934, 935 and 936.
Refusal RefusalOf(std::string_view check);

}  // namespace kev
