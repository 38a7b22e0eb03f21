// SPDX-License-Identifier: MIT
// Any text as a colour, wherever one is typed or stands in a file.
#include "chart/colour_dialogs.h"
#include "chart/gradient.h"
#include "document/colours.h"
#include "fuzz_support.h"
#include "properties/row_values.h"

namespace {

using namespace kev;
using fuzz::Require;

bool IsChannel(int value) {
  return value >= 0 && value <= 255;
}

void CheckSheetColour(std::string_view text) {
  const Colour colour = ParseColour(text);
  Require(IsChannel(colour.Red) && IsChannel(colour.Green) && IsChannel(colour.Blue));
  Require(NormaliseColour(colour) == colour);
  const std::string written =
      std::to_string(colour.Red) + ',' + std::to_string(colour.Green) + ',' + std::to_string(colour.Blue);
  Require(ParseColour(written) == colour);
}

void CheckDialogs(const std::string& text) {
  Back01State back = OpenedBack01(text);
  ShowColorsState picker = OpenedShowColors(ChartColourOf(text));
  for (std::size_t slider = 0; slider < kBackSliders.size(); ++slider) {
    SlideBack01(back, slider, static_cast<int>(text.size() % 256));
    Require(back.Sliders[slider] == static_cast<int>(text.size() % 256));
    LeaveBack01(back, slider, text);
    Require(IsChannel(back.Sliders[slider]) && back.Boxes[slider] == std::to_string(back.Sliders[slider]));
  }
  for (std::size_t slider = 0; slider < kColourSliders.size(); ++slider) {
    TypeColour(picker, slider, text);
    Require(IsChannel(picker.Sliders[slider]));
    LeaveColour(picker, slider);
    Require(picker.Boxes[slider] == std::to_string(picker.Sliders[slider]));
  }
  PickFromPalette(picker, ChartColourOf(text));
  Require(ResultantColour(picker) == ChartColourOf(text));
  SlideColour(picker, 0, 255);
  Require(picker.Boxes[0] == "255");
  const std::array<int, 6> ends = GradientOf(text);
  const std::vector<Rgb> rows = BuildBackGround(ends[0], ends[1], ends[2], ends[3], ends[4], ends[5], 9);
  Require(rows.size() == 9);
  Require(PaletteHex(ResultantColour(picker)).size() == 6);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(fuzz::TextOf(data, size));
  CheckSheetColour(text);
  Require(ChartColourOf(text) <= 0xFFFFFF);
  CheckDialogs(text);
  return 0;
}
