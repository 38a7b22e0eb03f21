// SPDX-License-Identifier: MIT
#include "document/columns.h"

namespace kev {

int ColumnTable::Find(std::string_view name, const CodePage& page) const {
  if (name.empty()) return 0;
  for (int slot = 1; slot <= kLastSlot; ++slot) {
    if (page.EqualsIgnoringCase((*this)[slot].Name, name)) return slot;
  }
  return 0;
}

std::string GeneratedColumnName(int slot) {
  return (slot < 10 ? "$Col_0" : "$Col_") + std::to_string(slot);
}

}  // namespace kev
