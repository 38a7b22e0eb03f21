// SPDX-License-Identifier: MIT
// Colours as records hold them: red, green, blue, or an index into the sixteen basic colours.
#pragma once

#include "document/attribute_state.h"

namespace kev {

// Red, green and blue between 0 and 255. A triple with a part of -1 is an index in its red part, and an index
// that does not exist counts as 0, which is black.
Colour NormaliseColour(const Colour& colour);

inline Colour TextColourOf(const ObjectRecord& record) {
  return {record.ColorR, record.ColorG, record.ColorB};
}
inline Colour BackColourOf(const ObjectRecord& record) {
  return {record.BackColorR, record.BackColorG, record.BackColorB};
}

}  // namespace kev
