// SPDX-License-Identifier: MIT
// Any bytes as the designer's options: what is read is written and read again as it was.
#include "app/options.h"
#include "fuzz_support.h"

namespace {

using namespace kev;
using fuzz::Require;

// The end of a run writes nothing of the text box.
void ForgetTextBox(DesignerOptions& options) {
  const DesignerOptions first;
  options.LastTextBoxFontName = first.LastTextBoxFontName;
  options.LastTextBoxFontSize = first.LastTextBoxFontSize;
  options.LastTextBoxFontColor = first.LastTextBoxFontColor;
  options.LastTextBoxBackColor = first.LastTextBoxBackColor;
  options.LastTextBoxFontUnderline = first.LastTextBoxFontUnderline;
  options.LastTextBoxFontCharSet = first.LastTextBoxFontCharSet;
  options.LastTextBoxFontItalic = first.LastTextBoxFontItalic;
}

void CheckPanel(const DesignerOptions& options) {
  const PanelArea screen{0, 0, 20000, 15000};
  PanelArea panel{options.PropLeft, options.PropTop, options.PropWidth, options.PropHeight};
  MovePanelIn(panel, screen);
  Require(panel.Left >= screen.Left && panel.Top >= screen.Top);
  const PanelArea moved = panel;
  MovePanelIn(panel, screen);
  Require(panel == moved);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  DesignerOptions options = ReadOptions(fuzz::TextOf(data, size));
  Require(options.LastFontSize > 0 && options.LastFontSize <= 72 && options.PropFixWidth != 0);
  CheckPanel(options);

  const LastUsed last = LastUsedIn(options);
  DesignerOptions kept = options;
  KeepLastUsed(last, kept);
  Require(kept == options);

  ForgetTextBox(options);
  Require(ReadOptions(OptionsText(options)) == options);
  return 0;
}
