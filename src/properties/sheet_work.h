// SPDX-License-Identifier: MIT
// What applying a sheet needs beside the page.
#pragma once

#include <cstdint>
#include <string>

#include "base/host.h"
#include "document/object_creation.h"
#include "surface/page_work.h"

namespace kev {

// Beside the page, or on the form FormPROPS.
enum class SheetPlace : std::uint8_t { Docked, Floating };

struct SheetWork {
  PageWork& page;
  Host& host;
  PictureSource& pictures;
  // Where relative names in the template begin; native bytes, empty for a document that has no path.
  std::string templateFolder;
  // Where sheets stand now.
  SheetPlace place = SheetPlace::Docked;
};

}  // namespace kev
