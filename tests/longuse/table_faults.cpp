// SPDX-License-Identifier: MIT
#include "longuse/table_faults.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <sstream>
#include <stdexcept>
#include <utility>
#include <variant>

#include "document/object_fields.h"
#include "document/sections.h"

namespace kev::test {
namespace {

class Rules {
 public:
  explicit Rules(const Document& document) : document_(document), objects_(document.Objects) {}

  std::vector<std::string> Faults() {
    CheckPairs();
    CheckOwners();
    CheckBound();
    CheckSelection();
    CheckColumns();
    return std::move(faults_);
  }

 private:
  template <typename... Parts>
  void Fault(const Parts&... parts) {
    std::ostringstream text;
    (text << ... << parts);
    faults_.push_back(text.str());
  }

  bool Is(int row, ObjectKind kind) const {
    return row >= 1 && row <= ObjectTable::kLastRow && objects_[row].Kind == kind;
  }

  // Each subsection has an end row of its own, and each end row a subsection.
  void CheckPairs() {
    std::map<int, int> barsOfEnd;
    int ends = 0;
    for (int row = 1; row <= objects_.LastScanned(); ++row) {
      if (Is(row, ObjectKind::EndOfSubsection)) ++ends;
      if (!Is(row, ObjectKind::Subsection)) continue;
      const int end = objects_[row].EndRow;
      if (end == 0 && objects_[row].SectionTitle.Text().starts_with("[CONFIGURATION]")) continue;
      if (!Is(end, ObjectKind::EndOfSubsection))
        Fault("row ", row, " ends in row ", end, ", which is no end");
      if (!barsOfEnd.emplace(end, row).second) Fault("row ", end, " ends two subsections");
    }
    if (std::cmp_not_equal(barsOfEnd.size(), ends))
      Fault(ends, " end rows for ", barsOfEnd.size(), " subsections");
  }

  void CheckOwners() {
    const OwnerIndex owners(document_);
    for (int row = 1; row <= objects_.LastScanned(); ++row) {
      const ObjectKind kind = objects_[row].Kind;
      const bool isBand = kind == ObjectKind::Section || kind == ObjectKind::Subsection;
      if (kind == ObjectKind::None || isBand) continue;
      const int owner = owners.OwnerOf(row);
      if (!Is(owner, ObjectKind::Subsection))
        Fault("row ", row, " belongs to \"", objects_[row].OwnerName, "\", which is no subsection");
    }
  }

  // Whatever is occupied lies within the bound, and a command always finds a free row unless the table is
  // full.
  void CheckBound() {
    int occupied = 0;
    for (int row = 1; row <= ObjectTable::kLastRow; ++row) {
      if (objects_[row].Kind == ObjectKind::None) continue;
      ++occupied;
      if (row > objects_.ObjectCount) Fault("row ", row, " lies behind the bound ", objects_.ObjectCount);
    }
    if (objects_[0].Kind != ObjectKind::None) Fault("row 0 is occupied");
    if (objects_.ObjectCount < ObjectTable::kFirstCount) Fault("the bound fell to ", objects_.ObjectCount);
    ObjectTable copy = objects_;
    if (occupied < ObjectTable::kLastRow && !Is(TakeFree(copy), ObjectKind::None))
      Fault("the next free row is none, with ", occupied, " rows occupied");
  }
  static int TakeFree(ObjectTable& table) {
    try {
      return table.TakeFreeRow();
    } catch (const std::out_of_range&) {
      return -1;
    }
  }

  void CheckSelection() {
    int selected = 0;
    for (int row = 1; row <= objects_.LastScanned(); ++row)
      selected += objects_[row].Selected != kFalse ? 1 : 0;
    if (selected != objects_.SelectionCount && objects_.SelectionCount != 0)
      Fault(selected, " rows are selected and ", objects_.SelectionCount, " are counted");
    const int current = objects_.CurrentObject;
    if (current < 0 || current > ObjectTable::kLastRow || (current != 0 && Is(current, ObjectKind::None)))
      Fault("the current object is row ", current, ", which is free");
  }

  void CheckColumns() {
    for (int slot = 1; slot <= ColumnTable::kLastSlot; ++slot) {
      const Column& column = document_.Columns[slot];
      if (column.Name.empty()) continue;
      if (column.Name.front() != '$') Fault("column ", slot, " is called \"", column.Name, "\"");
      if (!std::isfinite(column.Position)) Fault("column ", slot, " lies nowhere");
    }
  }

  const Document& document_;
  const ObjectTable& objects_;
  std::vector<std::string> faults_;
};

// "row 12, LABEL Total"
std::string Named(int row, const ObjectRecord& record) {
  return "row " + std::to_string(row) + ", " + std::string(KindText(record.Kind)) + ' ' + record.Content;
}

}  // namespace

std::vector<std::string> TableFaults(const Document& document) {
  return Rules(document).Faults();
}

std::vector<ObjectRecord> RowsToCompare(const Document& document) {
  std::vector<ObjectRecord> rows;
  for (int row = 1; row <= document.Objects.LastScanned(); ++row) {
    rows.push_back(document.Objects[row]);
    rows.back().Selected = kFalse;
    rows.back().SortKey = {};
    // Painting measures it, with what the code painted before left behind.
    if (rows.back().Kind == ObjectKind::Barcode) rows.back().Width = 0;
  }
  while (!rows.empty() && rows.back().Kind == ObjectKind::None)
    rows.pop_back();
  return rows;
}

std::string FirstRowDifference(const std::vector<ObjectRecord>& actual,
                               const std::vector<ObjectRecord>& expected) {
  const ObjectRecord free;
  for (std::size_t index = 0; index < std::max(actual.size(), expected.size()); ++index) {
    const ObjectRecord& one = index < actual.size() ? actual[index] : free;
    const ObjectRecord& other = index < expected.size() ? expected[index] : free;
    if (one == other) continue;
    const int row = static_cast<int>(index) + 1;
    if (one.Kind != other.Kind) return Named(row, one) + " instead of " + Named(row, other);
    std::string fields;
    for (const FieldRow& field : kObjectFields) {
      const auto isSame = [&](auto member) { return one.*member == other.*member; };
      if (!std::visit(isSame, field.member)) fields += ' ' + std::string(field.name);
    }
    return Named(row, one) + ':' + (fields.empty() ? " its chart" : fields);
  }
  return {};
}

}  // namespace kev::test
