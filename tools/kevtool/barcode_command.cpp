// SPDX-License-Identifier: MIT
#include <algorithm>
#include <charconv>
#include <functional>
#include <iostream>

#include "barcode/barcode_kinds.h"
#include "barcode/element_codes.h"
#include "barcode/encoder.h"
#include "commands.h"
#include "document/symbologies.h"

namespace kev::tool {
namespace {

using Encoding = std::function<std::string(std::string_view text)>;

std::string Code39Digits(std::string_view text) {
  std::string digits;
  for (const std::string& character : Code39Elements(text))
    digits += character;
  return digits;
}

Encoding EncodingByKeyword(const std::string& keyword) {
  return [keyword](std::string_view text) { return BarcodeEncoder().Encode(keyword, text); };
}

// A number is a kind, anything else a keyword of the encoder; empty for what is neither.
Encoding EncodingOf(const std::string& kind) {
  int number = 0;
  const auto [end, error] = std::from_chars(kind.data(), kind.data() + kind.size(), number);
  const bool isNumber = error == std::errc() && end == kind.data() + kind.size();
  if (isNumber && SymbologyOfKind(number) != nullptr) {
    switch (BarPainterOf(number)) {
      case BarPainter::Code39:
        return Code39Digits;
      case BarPainter::Code128:
        return Code128BElements;
      default:
        return EncodingByKeyword(std::string(EncoderKeyword(number)));
    }
  }
  return BarcodeEncoder().Knows(kind) ? EncodingByKeyword(kind) : Encoding();
}

int PrintOne(const Encoding& encode, const std::string& utf8) {
  std::string missing;
  const std::optional<std::string> text = CodePage::Default().FromUtf8(utf8, &missing);
  if (!text) {
    std::cerr << "kevtool: a template cannot hold the character " << missing << '\n';
    return kWrongUsage;
  }
  const std::string pattern = encode(*text);
  std::cout << pattern << '\n';
  return IsEncodingError(pattern) ? kRefused : kGood;
}

}  // namespace

int Barcode(const BarcodeChoice& choice) {
  const Encoding encode = EncodingOf(choice.kind);
  if (!encode) {
    std::cerr << "kevtool: there is no bar code of the kind " << choice.kind << '\n';
    return kWrongUsage;
  }
  if (choice.lines == choice.text.has_value()) {
    std::cerr << "kevtool: barcode takes either TEXT or --lines\n";
    return kWrongUsage;
  }
  if (!choice.lines) return PrintOne(encode, *choice.text);
  int status = kGood;
  for (std::string line; std::getline(std::cin, line);) {
    const int own = PrintOne(encode, line);
    if (own == kWrongUsage) return own;
    status = std::max(status, own);
  }
  return status;
}

}  // namespace kev::tool
