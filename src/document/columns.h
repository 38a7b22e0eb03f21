// SPDX-License-Identifier: MIT
// Up to 100 named vertical columns of a document. Positions are twips from the left edge of the page area.
#pragma once

#include <array>
#include <stdexcept>
#include <string>
#include <string_view>

#include "base/code_page.h"
#include "base/reasons.h"

namespace kev {

struct Column {
  std::string Name;  // begins with "$"; empty marks a free slot
  double Position = 0;
  std::string PreviousName;  // filled only while columns are being organised

  bool operator==(const Column&) const = default;
};

class ColumnTable {
 public:
  static constexpr int kLastSlot = 100;

  // Slots 1 to 100 are columns; slot 0 is never used. Anything else throws std::out_of_range.
  Column& operator[](int slot) { return slots_[Checked(slot)]; }
  const Column& operator[](int slot) const { return slots_[Checked(slot)]; }

  // The first slot with this name, in any case; 0 when there is none. A free slot never matches.
  int Find(std::string_view name, const CodePage& page = CodePage::Default()) const;
  void Clear() { slots_ = {}; }

  bool operator==(const ColumnTable&) const = default;

 private:
  // The sentence is what a user reads when a command or a file goes beyond the table.
  static std::size_t Checked(int slot) {
    if (slot < 0 || slot > kLastSlot) throw std::out_of_range(kReasonTooManyColumns);
    return static_cast<std::size_t>(slot);
  }

  std::array<Column, kLastSlot + 1> slots_;
};

// "$Col_07", "$Col_100".
std::string GeneratedColumnName(int slot);

}  // namespace kev
