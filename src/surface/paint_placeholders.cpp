// SPDX-License-Identifier: MIT
// Objects whose own picture is made elsewhere: their place is framed and named. A file that bears the name of
// such a picture may be another run's, so none is painted that this run has not made.
#include "surface/paint_kinds.h"

namespace kev {
namespace {

constexpr Rgb kFrame = 0xA0A0A0;
constexpr Rgb kCaption = 0x707070;
constexpr double kCaptionPoints = 8;
constexpr std::size_t kLongestCaption = 100;

// As much of the text as has room, with dots for the rest; nothing where not even one character has.
std::string Elided(SurfaceOps& surface, std::string_view text, double room) {
  std::string shown(text.substr(0, kLongestCaption));
  if (shown.size() == text.size() && surface.TextWidth(shown) <= room) return shown;
  for (std::size_t kept = shown.size(); kept > 0; --kept) {
    shown.replace(kept, std::string::npos, "...");
    if (surface.TextWidth(shown) <= room) return shown;
  }
  return {};
}

}  // namespace

void PaintPlaceholder(PaintContext& context, const CanvasArea& area, std::string_view caption) {
  SurfaceOps& surface = context.surface;
  surface.DrawRectColour(area.Left, area.Top, area.Right, area.Bottom, kFrame, false);
  const FontSpec font{.Name = "Arial", .Size = kCaptionPoints * context.ZoomFactor};
  surface.SetFont(font);
  const double height = context.measurer.Measure(font, caption).Height;
  const std::string shown = Elided(surface, caption, area.Width());
  if (shown.empty() || height > area.Height()) return;
  surface.SetForeground(kCaption);
  surface.PrintText(area.Left + (area.Width() - surface.TextWidth(shown)) / 2,
                    area.Top + (area.Height() - height) / 2, shown);
}

}  // namespace kev
