// SPDX-License-Identifier: MIT
#include "document/columns.h"

namespace kev {

int ColumnTable::Find(std::string_view name, const CodePage& page) const {
  if (name.empty()) return 0;
  // Most names differ in their last digit alone.
  const char last = page.Upper(name.back());
  for (int slot = 1; slot <= kLastSlot; ++slot) {
    const std::string& own = (*this)[slot].Name;
    if (own.size() == name.size() && page.Upper(own.back()) == last && page.EqualsIgnoringCase(own, name))
      return slot;
  }
  return 0;
}

std::string GeneratedColumnName(int slot) {
  return (slot < 10 ? "$Col_0" : "$Col_") + std::to_string(slot);
}

}  // namespace kev
