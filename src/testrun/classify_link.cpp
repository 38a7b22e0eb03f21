// SPDX-License-Identifier: MIT
#include "testrun/classify_link.h"

#include <algorithm>
#include <array>

#include "base/code_page.h"
#include "base/text.h"

namespace kev {

bool HasAddressPrefix(std::string_view text) {
  constexpr std::array<std::string_view, 3> kPrefixes = {"HTTP://", "HTTPS://", "FTP://"};
  const std::string capitals = CodePage::Default().Upper(text.substr(0, 8));
  return std::any_of(kPrefixes.begin(), kPrefixes.end(),
                     [&](std::string_view prefix) { return capitals.starts_with(prefix); });
}

LinkKind ClassifyLink(std::string& text) {
  text = std::string(Trim(text));
  LinkKind kind = text.find('/') != std::string::npos ? LinkKind::Remote : LinkKind::Local;
  const bool prefixed = HasAddressPrefix(text);
  if (text.find('\\') != std::string::npos) {
    kind = LinkKind::Local;
  } else if (prefixed || std::count(text.begin(), text.end(), '.') > 2) {
    kind = LinkKind::Remote;
  }
  if (kind == LinkKind::Remote && !prefixed) text.insert(0, "http://");
  return kind;
}

}  // namespace kev
