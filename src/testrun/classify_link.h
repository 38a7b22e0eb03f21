// SPDX-License-Identifier: MIT
// Tells a local path from an address.
#pragma once

#include <string>

namespace kev {

enum class LinkKind { Local = 1, Remote = 2 };

// Trims the text in place; a remote address without "http://", "https://" or "ftp://" gains "http://".
// A text with a backslash is local, one with a slash or with more than two points is remote.
LinkKind ClassifyLink(std::string& text);

// Whether the text begins, in any case, with one of the three.
bool HasAddressPrefix(std::string_view text);

}  // namespace kev
