// SPDX-License-Identifier: MIT
// Paper sizes by name.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

namespace kev {

struct Paper {
  std::int16_t Code = 0;    // the platform's number of the printer paper
  std::int32_t Width = 0;   // twips
  std::int32_t Length = 0;  // twips
};

// Understands a display name ("A4, 210 x 297 mm"), a short name in any case and with any blanks, and a code
// as text. Nothing for a name that the table does not hold; "(custom)" is one of those.
std::optional<Paper> LookupPaper(std::string_view name);

// The names offered for choice, in the order of their codes, each with its size behind a comma.
std::span<const std::string_view> PaperDisplayNames();

}  // namespace kev
