// SPDX-License-Identifier: MIT
#include "surface/group_commands.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <utility>

#include "base/numbers.h"
#include "base/text.h"
#include "base/text_numbers.h"
#include "document/position.h"
#include "document/sections.h"
#include "document/typed_position.h"
#include "surface/clipboard.h"
#include "surface/column_lines.h"
#include "surface/object_area.h"
#include "surface/object_drag_end.h"
#include "surface/selection.h"

namespace kev {
namespace {

// Nothing without a group.
std::vector<int> Members(const PageWork& work) {
  return work.pointer.MultiSelected ? GroupMembers(work) : std::vector<int>();
}

const ObjectRecord& RecordAt(const PageWork& work, int row) {
  return std::as_const(work.document).Objects[row];
}

int TopmostOf(const PageWork& work, const std::vector<int>& members) {
  return *std::min_element(members.begin(), members.end(), [&](int a, int b) {
    return RecordAt(work, a).AbsoluteY < RecordAt(work, b).AbsoluteY;
  });
}

// Twips. Not from the bounds on the canvas, which the zoom makes uneven.
double LeftEdgeOf(const PageWork& work, const std::vector<int>& members) {
  double left = std::numeric_limits<double>::max();
  for (const int row : members)
    left = std::min(left, AreaOf(RecordAt(work, row), work.document, 1).Left);
  return left;
}

void Repaint(PageWork& work) {
  HideHandles(work);
  work.services.FullRepaint();
}

// --- Placing ---

// An item stands for its column.
std::string_view PositionIn(const PlaceSelection& dialog) {
  const bool isItem =
      std::find(dialog.Items.begin(), dialog.Items.end(), dialog.Combocol) != dialog.Items.end();
  return isItem ? NthToken(dialog.Combocol, 1, kBlank) : Trim(dialog.Combocol);
}

struct Shift {
  double X = 0;
  std::int64_t Y = 0;
};

void MoveMember(const Document& document, ObjectRecord& record, const Shift& by) {
  const double x = PositionOrZero(record.XValue, document.Columns, *document.Page) + by.X;
  record.XValue = FormatNumber(x);
  if (record.Kind == ObjectKind::Line) record.X2Value = FormatNumber(x + record.Width);
  record.Y = Fit32(record.Y + by.Y);
  record.AbsoluteY = Fit32(record.AbsoluteY + by.Y);
}

// --- The grid ---

void SnapMember(Document& document, int row, int bar) {
  ObjectRecord& record = document.Objects[row];
  record.XValue = WholePosition(SnappedX(document, row));
  CarryLineEnd(document, record);
  PlaceInBody(document, row, bar, SnappedY(document, row, bar));
}

void SnapMembers(Document& document, const std::vector<int>& members) {
  const OwnerIndex owners(document);
  // All are found before any moves: a snapped row may lie in a body that it does not belong to.
  std::vector<int> bars;
  for (const int row : members)
    bars.push_back(owners.OwnerOf(row));
  for (std::size_t i = 0; i < members.size(); ++i)
    SnapMember(document, members[i], bars[i]);
}

template <typename Change>
void ChangeMembers(PageWork& work, const Change& change) {
  const std::vector<int> members = Members(work);
  if (members.empty()) return;
  work.services.PushUndo();
  for (const int row : members)
    change(work.document.Objects[row]);
  Repaint(work);
}

}  // namespace

void AlignHorizontally(PageWork& work) {
  const std::vector<int> members = Members(work);
  if (members.empty() || !CheckMovable(work, ClipboardUse::Take)) return;
  const std::int32_t top = RecordAt(work, TopmostOf(work, members)).AbsoluteY;
  for (const int row : members) {
    if (RecordAt(work, row).AbsoluteY <= std::int64_t{top} + kFarthestAligned) continue;
    work.services.ShowBox(kTextObjectsTooFarApart, BoxIcon::Critical);
    return;
  }
  work.services.PushUndo();
  for (const int row : members)
    work.document.Objects[row].AbsoluteY = top;
  EndGroup(work);
  Repaint(work);
}

PlaceSelection OpenedPlaceSelection(const PageWork& work) {
  PlaceSelection dialog;
  dialog.Items = ColumnListOf(work.document.Columns, {}).Items;
  const std::vector<int> members = Members(work);
  if (members.empty()) return dialog;
  dialog.YPosition = FormatNumber(RecordAt(work, TopmostOf(work, members)).Y);
  dialog.Combocol = FormatNumber(LeftEdgeOf(work, members));
  return dialog;
}

bool AcceptPlaceSelection(PageWork& work, const PlaceSelection& dialog) {
  if (NumericPrefix(dialog.YPosition) < 0) return false;
  const std::int32_t y = Int32Of(dialog.YPosition);
  const Document& document = work.document;
  const std::string_view position = PositionIn(dialog);
  if (!MayBePosition(position, document)) {
    work.services.ShowBox(kTextPositionRefused, BoxIcon::Critical);
    return false;
  }
  const std::vector<int> members = Members(work);
  if (members.empty()) return true;
  const double x = PositionOrZero(position, document.Columns, *document.Page);
  const Shift by{x - LeftEdgeOf(work, members), std::int64_t{y} - RecordAt(work, TopmostOf(work, members)).Y};
  ChangeMembers(work, [&](ObjectRecord& record) { MoveMember(document, record, by); });
  return true;
}

void AcceptAlignToGrid(PageWork& work, const AlignToGrid& dialog) {
  const std::vector<int> members = Members(work);
  if (members.empty() || (!dialog.Check1 && !dialog.Check2)) return;
  work.services.PushUndo();
  if (dialog.Check1) SnapMembers(work.document, members);
  if (dialog.Check2) {
    for (const int row : members)
      work.document.Objects[row].AlignToGrid = dialog.Combo1 ? 1 : 0;
  }
  Repaint(work);
  work.services.ShowBox(dialog.Check1 ? kTextGridDone : kTextGridPropertySet, BoxIcon::Information);
}

bool GroupIsModifiable(const PageWork& work) {
  const std::vector<int> members = Members(work);
  return !members.empty() && RecordAt(work, members.front()).ModifiableByEndUser == 1;
}

void SetGroupModifiable(PageWork& work, bool modifiable) {
  ChangeMembers(work, [&](ObjectRecord& record) { record.ModifiableByEndUser = modifiable ? 1 : 0; });
}

bool GroupIsPrinted(const PageWork& work) {
  const std::vector<int> members = Members(work);
  return !members.empty() && RecordAt(work, members.front()).PrintFlag == kTrue;
}

void SetGroupPrinted(PageWork& work, bool printed) {
  ChangeMembers(work, [&](ObjectRecord& record) { record.PrintFlag = ToFlag(printed); });
}

}  // namespace kev
