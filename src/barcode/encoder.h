// SPDX-License-Identifier: MIT
// Texts as bars of equal modules, for every symbology that is not painted from its elements.
#pragma once

#include <string>
#include <string_view>

#include "base/code_page.h"

namespace kev {

// One character for each module: "1" is a bar, every other character a space.
using ModuleString = std::string;

class BarcodeEncoder {
 public:
  explicit BarcodeEncoder(const CodePage& page = CodePage::Default()) : page_(page) {}

  // Keywords, in any case: "2/5BARRE", "2/5IND", "2/5INT", "39", "32", "EAN8", "EAN13", "UPC/A", "128C" and
  // "128B"; empty for any other. The results of "EAN13" and "UPC/A" have "A" for a space, "UPC/A" ends in the
  // check digit ("/CD=5/"), and "128B" gives widths: digits for bars, letters ("A" is 1) for spaces.
  //
  // What cannot be encoded gives an error instead of the pattern: "/ERRORE=N/" is no number, "/ERRORE=L/" has
  // the wrong length, "/ERRORE=D/" an odd number of digits, "/ERRORE=P:044/" a character without a pattern,
  // by its code.
  ModuleString Encode(std::string_view keyword, std::string_view value) const;
  // Whether Encode knows it.
  bool Knows(std::string_view keyword) const;

 private:
  const CodePage& page_;
};

// Whether a result is an error instead of a pattern.
bool IsEncodingError(std::string_view result);

// Of the first twelve digits.
char Ean13CheckDigit(std::string_view twelveDigits);

}  // namespace kev
