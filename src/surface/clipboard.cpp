// SPDX-License-Identifier: MIT
#include "surface/clipboard.h"

#include <algorithm>
#include <limits>
#include <stdexcept>
#include <utility>
#include <variant>
#include <vector>

#include "base/numbers.h"
#include "base/reasons.h"
#include "base/text_numbers.h"
#include "document/kind_defaults.h"
#include "document/object_fields.h"
#include "document/position.h"
#include "surface/insertion.h"
#include "surface/page_keys.h"
#include "surface/selection.h"

namespace kev {
namespace {

bool IsBar(const ObjectRecord& record) {
  return record.Kind == ObjectKind::Section || record.Kind == ObjectKind::Subsection;
}

bool MayBeUsed(const ObjectRecord& record, ClipboardUse use) {
  return !IsBar(record) && (use == ClipboardUse::Paste || record.Kind != ObjectKind::EndOfSubsection);
}

// Bands never become members by hand; a row that says so all the same is refused like a current one.
bool IsGroupUsable(const ObjectTable& objects, ClipboardUse use) {
  for (int row = 1; row <= objects.LastScanned(); ++row)
    if (objects[row].Selected == kTrue && !MayBeUsed(objects[row], use)) return false;
  return true;
}

// --- Copying ---

std::vector<int> SelectedRows(const PageWork& work) {
  if (work.pointer.MultiSelected) return GroupMembers(work);
  const ObjectTable& objects = work.document.Objects;
  if (objects[objects.CurrentObject].Kind == ObjectKind::None) return {};
  return {objects.CurrentObject};
}

ObjectRecord Copied(const ObjectRecord& source, const Document& document) {
  ObjectRecord copy = source;
  const auto resolved = [&](const std::string& position) {
    return FormatNumber(PositionOrZero(position, document.Columns, *document.Page));
  };
  copy.XValue = resolved(source.XValue);
  if (copy.Kind == ObjectKind::Line) copy.X2Value = resolved(source.X2Value);
  return copy;
}

ClipboardTable TakenFrom(const PageWork& work) {
  const Document& document = work.document;
  ClipboardTable taken;
  taken.Page = document.Page;
  for (const int row : SelectedRows(work))
    taken.Rows.emplace(row, Copied(document.Objects[row], document));
  return taken;
}

// --- From one code page to another ---

class TextConversion {
 public:
  TextConversion(const CodePage& from, const CodePage& to) : from_(from), to_(to) {}

  void Convert(std::string& text) {
    if (missing_) return;
    std::string character;
    std::optional<std::string> converted = to_.FromUtf8(from_.ToUtf8(text), &character);
    if (converted)
      text = std::move(*converted);
    else
      missing_ = std::move(character);
  }
  template <std::convertible_to<std::string_view> Text>
  void Convert(Text& text) {
    std::string converted = text;
    Convert(converted);
    text = converted;
  }
  void Convert(RareOptional<std::string>& text) {
    if (text) Convert(*text);
  }
  template <typename Number>
  void Convert(Number&) {}

  const std::optional<std::string>& Missing() const { return missing_; }

 private:
  const CodePage& from_;
  const CodePage& to_;
  std::optional<std::string> missing_;
};

// Ansi and the default follow the page of the template; any other character set has a page of its own.
bool HasOwnPage(const ObjectRecord& record) {
  const int number = Int32Of(record.CharSet);
  return number != 0 && number != 1;
}

void ConvertTexts(ObjectRecord& record, TextConversion& conversion) {
  const std::string content = record.Content;
  if (HasOwnPage(record)) record.Content.clear();
  for (const FieldRow& field : kObjectFields)
    std::visit([&](auto member) { conversion.Convert(record.*member); }, field.member);
  for (std::string& value : record.ChartValues)
    conversion.Convert(value);
  if (HasOwnPage(record)) record.Content = content;
}

// --- Pasting ---

// In the texts of another page than theirs, or the character that it does not hold.
std::optional<std::string> ConvertRecords(std::map<int, ObjectRecord>& records, const CodePage& from,
                                          const CodePage& to) {
  TextConversion conversion(from, to);
  for (auto& [row, record] : records)
    ConvertTexts(record, conversion);
  return conversion.Missing();
}

// Twips.
struct Corner {
  double X = std::numeric_limits<double>::max();
  std::int64_t Y = std::numeric_limits<std::int32_t>::max();
};

Corner CornerOf(const std::map<int, ObjectRecord>& records) {
  Corner corner;
  for (const auto& [row, record] : records) {
    corner.X = std::min(corner.X, NumericPrefix(record.XValue));
    corner.Y = std::min(corner.Y, std::int64_t{record.AbsoluteY});
  }
  return corner;
}

// Whole twips, as all places that the pointer makes.
void MoveFrom(ObjectRecord& record, const Corner& corner, const PageWork& work) {
  const double left = RoundToEven(work.pointer.LastX / work.ZoomFactor);
  const std::int64_t top = ToInt32(work.pointer.LastY / work.ZoomFactor);
  const auto moved = [&](const std::string& position) {
    return FormatNumber(RoundToEven(NumericPrefix(position) - corner.X + left));
  };
  record.XValue = moved(record.XValue);
  if (record.Kind == ObjectKind::Line) record.X2Value = moved(record.X2Value);
  record.AbsoluteY = Fit32(record.AbsoluteY - corner.Y + top);
}

// The rows lie in this subsection unless they are found to lie in another one.
void GiveTo(const ObjectRecord& bar, ObjectRecord& record) {
  record.OwnerName = bar.SectionName;
  record.Y = Fit32(std::int64_t{record.AbsoluteY} - bar.AbsoluteY - kBarHeight);
}

void RaiseCount(ObjectTable& objects, std::size_t count) {
  // Behind the table's end the bound would keep freed rows from being used again.
  const int raised = std::min(objects.ObjectCount + static_cast<int>(count), ObjectTable::kLastRow);
  objects.ObjectCount = std::max(objects.ObjectCount, raised);
}

// The table itself gives no row any more once its bound lies behind it; what was cut must find its place
// again.
int FreeRowFrom(int first, const ObjectTable& objects) {
  for (int row = first; row <= objects.LastScanned(); ++row)
    if (objects[row].Kind == ObjectKind::None) return row;
  throw std::out_of_range(kReasonTooManyObjects);
}

std::vector<int> PutIntoTable(PageWork& work, const std::map<int, ObjectRecord>& records, int bar) {
  ObjectTable& objects = work.document.Objects;
  RaiseCount(objects, records.size());
  const Corner corner = CornerOf(records);
  std::vector<int> rows;
  for (const auto& [source, copied] : records) {
    const int row = FreeRowFrom(rows.empty() ? 1 : rows.back() + 1, objects);
    ObjectRecord& record = objects[row] = copied;
    MoveFrom(record, corner, work);
    GiveTo(std::as_const(objects)[bar], record);
    record.Selected = kTrue;
    rows.push_back(row);
  }
  return rows;
}

void ShowPasted(PageWork& work, const std::vector<int>& rows) {
  const bool isOne = rows.size() == 1;
  if (isOne) work.document.Objects[rows.front()].Selected = kFalse;
  work.document.Objects.CurrentObject = isOne ? rows.front() : 0;
  HideOverlay(work);
  HideHandles(work);
  work.services.FullRepaint();
  if (isOne) SelectObject(work, rows.front());
}

}  // namespace

bool CheckMovable(PageWork& work, ClipboardUse use) {
  const ObjectTable& objects = work.document.Objects;
  const bool usable = work.pointer.MultiSelected ? IsGroupUsable(objects, use)
                                                 : MayBeUsed(objects[objects.CurrentObject], use);
  if (!usable) work.services.ShowBox(kTextNotWithSection, BoxIcon::Critical);
  return usable;
}

void CopyObjects(PageWork& work, ClipboardTable& clipboard) {
  if (!CheckMovable(work, ClipboardUse::Take)) return;
  ClipboardTable taken = TakenFrom(work);
  if (taken.Empty()) return;
  clipboard = std::move(taken);
  work.services.CommandsChanged();
}

void CutObjects(PageWork& work, ClipboardTable& clipboard) {
  if (!CheckMovable(work, ClipboardUse::Take)) return;
  ClipboardTable taken = TakenFrom(work);
  if (taken.Empty()) return;
  DeleteSelected(work);
  clipboard = std::move(taken);
  work.services.CommandsChanged();
}

std::optional<std::string> PasteObjects(PageWork& work, const ClipboardTable& clipboard) {
  if (clipboard.Empty() || !CheckMovable(work, ClipboardUse::Paste)) return std::nullopt;
  const int bar = work.pointer.HasPosition() ? SubsectionUnder(work, work.pointer.LastY) : 0;
  if (bar == 0) {
    work.services.ShowBox(kTextNoSubsectionHere, BoxIcon::Critical);
    return std::nullopt;
  }
  const bool isOfThisPage = work.document.Page == clipboard.Page;
  std::map<int, ObjectRecord> converted;
  if (!isOfThisPage) {
    converted = clipboard.Rows;
    if (auto missing = ConvertRecords(converted, *clipboard.Page, *work.document.Page)) return missing;
  }
  work.services.PushUndo();
  EndGroup(work);
  ShowPasted(work, PutIntoTable(work, isOfThisPage ? clipboard.Rows : converted, bar));
  return std::nullopt;
}

}  // namespace kev
