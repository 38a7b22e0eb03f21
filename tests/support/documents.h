// SPDX-License-Identifier: MIT
// Documents put together row by row, without a template.
#pragma once

#include <string>

#include "document/document.h"

namespace kev::test {

struct PlacedBar {
  int bar;
  int end;
};

// A subsection of the section [DATA] with its end row. `name` is the head line, "[ITEMS]".
PlacedBar PutSubsection(Document& document, const std::string& name, std::int32_t absoluteY,
                        std::int32_t endsAt);

// A box at a place on the surface.
int PutBox(Document& document, std::int32_t absoluteY, const std::string& xValue = "0");

}  // namespace kev::test
