// SPDX-License-Identifier: MIT
// The tools for font, colour and alignment of a text. They change the current object, or the members of the
// group, and what they give is what the next text begins with.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "document/colours.h"
#include "surface/last_used.h"
#include "surface/page_work.h"

namespace kev {

// Points.
inline constexpr int kSmallestFontSize = 1;
inline constexpr int kLargestFontSize = 720;

// The buttons `ImgButton10` to `ImgButton15`.
enum class FontTool : std::uint8_t { Bold, Italic, Underline, AlignLeft, AlignCentre, AlignRight };

// What the tools show; texts have the names of their controls. Where they can't be used all is empty. The
// buttons of a group show its first text, the lists what all its texts have.
struct FontTools {
  bool Enabled = false;
  bool AlignEnabled = false;  // only a LABEL is aligned
  std::string ComboFont;
  std::string Combosize;
  bool Bold = false, Italic = false, Underline = false;
  char Align = '\0';   // 'L', 'C' or 'R'
  Colour PColor = {};  // as red, green and blue

  bool Checked(FontTool tool) const;
  bool CanUse(FontTool tool) const;
};

// A group needs a LABEL among its members, anything else a text of its own.
FontTools FontToolsOf(const PageWork& work);

// All take a snapshot unless nothing would change. A name that a template can't hold, and a size that is no
// number from 1 to 720, is not taken.
void UseFontName(PageWork& work, LastUsed& last, std::string_view name);
void UseFontSize(PageWork& work, LastUsed& last, std::string_view size);
// Bold, italic and underline become the opposite of what the button shows, on all members of a group.
void UseFontTool(PageWork& work, LastUsed& last, FontTool tool);
// The members of a group that are no texts get the colour too where they have one.
void UseTextColour(PageWork& work, LastUsed& last, const Colour& colour);

}  // namespace kev
