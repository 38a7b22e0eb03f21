// SPDX-License-Identifier: MIT
// Measures with the fonts that the window paints with.
#pragma once

#include "document/text_measurer.h"
#include "platform/fonts.h"

namespace kev {

class QtMeasurer final : public TextMeasurer {
 public:
  explicit QtMeasurer(FontCache& fonts) : fonts_(fonts) {}

  TextExtent Measure(const FontSpec& font, std::string_view text) const override;

 private:
  FontCache& fonts_;
};

}  // namespace kev
