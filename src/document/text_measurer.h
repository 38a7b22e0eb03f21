// SPDX-License-Identifier: MIT
// How wide and high a text is. The window measures with the fonts that it paints with; everything that runs
// without a display uses the built-in metrics, which agree with them for the three common families.
#pragma once

#include <string>
#include <string_view>

namespace kev {

struct FontSpec {
  std::string Name = "Arial";
  double Size = 10;  // points
  bool Bold = false;
  bool Italic = false;
  bool Strikethrough = false;
  bool Underline = false;
  std::string CharSet = "0";

  bool operator==(const FontSpec&) const = default;
};

// Twips.
struct TextExtent {
  double Width = 0;
  double Height = 0;
};

class TextMeasurer {
 public:
  virtual ~TextMeasurer() = default;
  virtual TextExtent Measure(const FontSpec& font, std::string_view text) const = 0;
};

// The advance widths of Arial, Times New Roman and Courier New; any other family is taken for the one it
// resembles.
class BuiltInMeasurer final : public TextMeasurer {
 public:
  TextExtent Measure(const FontSpec& font, std::string_view text) const override;
};

}  // namespace kev
