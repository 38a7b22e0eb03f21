// SPDX-License-Identifier: MIT
// The whole open document as one value.
#pragma once

#include "base/code_page.h"
#include "document/columns.h"
#include "document/object_table.h"
#include "document/settings.h"

namespace kev {

struct Document {
  ObjectTable Objects;
  ColumnTable Columns;
  DocumentSettings Settings;
  const CodePage* Page = &CodePage::Default();
};

}  // namespace kev
