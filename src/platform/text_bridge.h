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

// What was typed or pasted into a field of one line: breaks and other control characters become a blank each,
// since they would tear the line of the template in which the text is stored.
QString OneLine(QString text);
inline std::optional<std::string> FromLine(const QString& text, const CodePage& page,
                                           QString* refused = nullptr) {
  return FromQString(OneLine(text), page, refused);
}

// A path that the user chose, as the file system's own bytes.
std::string ToNative(const QString& path);

// A message with the native bytes that belong behind it: one blank parts them, unless the text ends with a
// line break or a blank already.
QString WithDetail(std::string_view text, std::string_view detail);

}  // namespace kev
