// SPDX-License-Identifier: MIT
// The border between the bytes of the core and the Unicode of the window system, both ways. The way in for
// the page's own texts is ToQString of fonts.h.
#pragma once

#include <QString>
#include <optional>
#include <string>
#include <string_view>

#include "base/code_page.h"
#include "platform/fonts.h"

namespace kev {

// A text of the language file: Windows-1252, whatever the page of the templates is.
inline QString ToQString(std::string_view text) {
  return ToQString(text, CodePage::Default());
}

// Nothing when the page does not hold a character of the text; `refused`, if given, then gets the first such
// character. A typed text that gives nothing is put back, never stored with a substitute.
std::optional<std::string> FromQString(const QString& text, const CodePage& page, QString* refused = nullptr);

// A path that the user chose, as the file system's own bytes.
std::string ToNative(const QString& path);

// A message with the native bytes that belong behind it: one blank parts them, unless the text ends with a
// line break or a blank already.
QString WithDetail(std::string_view text, std::string_view detail);

}  // namespace kev
