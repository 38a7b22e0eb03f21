// SPDX-License-Identifier: MIT
#include "document/typed_position.h"

#include "base/numbers.h"
#include "base/text.h"
#include "document/position.h"

namespace kev {

bool MayBePosition(std::string_view text, const Document& document) {
  const char reserved[] = {',', ';', '=', document.Settings.OpenCharacter(),
                           document.Settings.CloseCharacter()};
  if (text.find_first_of(std::string_view(reserved, sizeof reserved)) != std::string_view::npos) return false;
  return ValidatePosition(text, document.Columns, *document.Page);
}

std::string StoredPosition(std::string_view text) {
  text = Trim(text);
  return text.starts_with('.') ? FormatNumber(NumericPrefix(text)) : std::string(text);
}

}  // namespace kev
