// SPDX-License-Identifier: MIT
// Positions that a user types, in a sheet or a dialog, before they are stored in a record.
#pragma once

#include <string>
#include <string_view>

#include "document/document.h"

namespace kev {

// Whether the trimmed text may be stored: it is a position, and a template can hold it.
bool MayBePosition(std::string_view text, const Document& document);

// As it is stored: a number that begins with a point gets its zero, because the reader takes such a text for
// no position.
std::string StoredPosition(std::string_view text);

}  // namespace kev
