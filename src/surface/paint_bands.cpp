// SPDX-License-Identifier: MIT
#include "document/kind_defaults.h"
#include "surface/paint_kinds.h"

#include "base/text.h"

namespace kev {
namespace {

constexpr Rgb kSectionFill = 0xAAAAAA;
constexpr double kCaptionInset = 10;  // twips
constexpr double kCaptionPoints = 8;
constexpr std::size_t kCaptionLength = 200;

std::string CaptionOf(const ObjectRecord& record, const CodePage& page) {
  const std::string name = page.Upper(record.SectionTitle);
  if (name == "[HEADER]" || name == "[DATA]" || name == "[FOOTER]")
    return "Section: " + record.SectionTitle.Text();
  std::string caption = record.SectionTitle.Text().substr(0, kCaptionLength);
  caption += " [Starts in position: ";
  caption += Trim(record.StartY);
  caption += ']';
  return caption;
}

void SetCaptionFont(SurfaceOps& surface, double points) {
  surface.SetForeground(kBlack);
  surface.SetFont(FontSpec{.Name = "Arial", .Size = points});
}

}  // namespace

void PaintSection(PaintContext& context, const ObjectRecord& record) {
  const double top = CanvasY(context, record);
  context.surface.DrawRectColour(0, top, context.canvasWidth, top + kBarHeight * context.ZoomFactor,
                                 kSectionFill, true);
  // At the head of the page and in a fixed size, wherever the band itself lies.
  SetCaptionFont(context.surface, kCaptionPoints);
  const double inset = kCaptionInset * context.ZoomFactor;
  context.surface.PrintText(inset, inset, record.SectionTitle);
}

void PaintSubsection(PaintContext& context, const ObjectRecord& record) {
  const double zoom = context.ZoomFactor;
  context.surface.PaintImage("\\Pbms\\sectpic.prbm", 0, CanvasY(context, record), context.canvasWidth,
                             kBarHeight * zoom);
  SetCaptionFont(context.surface, kCaptionPoints * zoom);
  context.surface.PrintText(kCaptionInset * zoom, (record.AbsoluteY + kCaptionInset) * zoom,
                            CaptionOf(record, *context.document.Page));
}

void PaintEndOfSubsection(PaintContext& context, const ObjectRecord& record) {
  context.surface.PaintImage("\\Pbms\\eos.prbm", 0, CanvasY(context, record), context.canvasWidth,
                             record.Height * context.ZoomFactor);
}

}  // namespace kev
