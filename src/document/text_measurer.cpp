// SPDX-License-Identifier: MIT
#include "document/text_measurer.h"

#include <array>
#include <cstdint>

#include "base/code_page.h"
#include "document/font_metrics_table.h"

namespace kev {
namespace {

constexpr double kTwipsPerPoint = 20;
constexpr double kUnitsPerEm = 2048;

bool NameHolds(std::string_view font, std::string_view part) {
  return CodePage::Default().ContainsIgnoringCase(font, part);
}

const FontMetricsRow& MetricsOf(const FontSpec& font) {
  // Most texts have it, and it holds none of the names below.
  if (font.Name == "Arial") return font.Bold ? kSansBoldMetrics : kSansMetrics;
  if (NameHolds(font.Name, "courier") || NameHolds(font.Name, "mono") || NameHolds(font.Name, "consol")) {
    return kMonoMetrics;
  }
  const bool sansByName = NameHolds(font.Name, "sans");
  if (!sansByName && (NameHolds(font.Name, "times") || NameHolds(font.Name, "serif") ||
                      NameHolds(font.Name, "georgia") || NameHolds(font.Name, "garamond"))) {
    if (font.Bold) return font.Italic ? kSerifBoldItalicMetrics : kSerifBoldMetrics;
    return font.Italic ? kSerifItalicMetrics : kSerifMetrics;
  }
  return font.Bold ? kSansBoldMetrics : kSansMetrics;
}

}  // namespace

TextExtent BuiltInMeasurer::Measure(const FontSpec& font, std::string_view text) const {
  const FontMetricsRow& metrics = MetricsOf(font);
  std::uint64_t sum = 0;
  for (const char c : text)
    sum += metrics.advance[static_cast<unsigned char>(c)];
  const auto advance = static_cast<double>(sum);
  const double unit = font.Size * kTwipsPerPoint / kUnitsPerEm;
  return {advance * unit, (metrics.ascent + metrics.descent) * unit};
}

}  // namespace kev
