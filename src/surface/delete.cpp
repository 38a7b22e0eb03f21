// SPDX-License-Identifier: MIT
// Deleting what is selected.
#include <algorithm>
#include <array>
#include <vector>

#include "base/text_numbers.h"
#include "document/object_deletion.h"
#include "document/sections.h"
#include "surface/page_keys.h"
#include "surface/selection.h"

namespace kev {
namespace {

// The subsections that a section begins with.
constexpr auto kBaseNames = std::to_array<std::string_view>({"HEADER]", "DATA]", "FOOTER]"});

bool IsBase(const ObjectRecord& bar) {
  return std::find(kBaseNames.begin(), kBaseNames.end(), bar.SectionName) != kBaseNames.end();
}

bool HoldsObjects(const Document& document, int bar) {
  const OwnerIndex owners(document);
  for (int row = 1; row <= document.Objects.LastScanned(); ++row) {
    const ObjectKind kind = document.Objects[row].Kind;
    if (kind != ObjectKind::None && !IsBand(kind) && owners.OwnerOf(row) == bar) return true;
  }
  return false;
}

bool MayDeleteSubsection(PageWork& work, int bar) {
  if (IsBase(work.document.Objects[bar])) {
    work.services.ShowBox(kTextBaseSectionStays, BoxIcon::Critical);
    return false;
  }
  if (!HoldsObjects(work.document, bar)) return true;
  return work.services.ShowBox(kTextDeleteFilledSubsection, BoxIcon::Question, BoxButtons::YesNo) ==
         BoxAnswer::Yes;
}

bool MayDelete(PageWork& work, int row) {
  const ObjectKind kind = work.document.Objects[row].Kind;
  if (kind == ObjectKind::Subsection) return MayDeleteSubsection(work, row);
  if (kind == ObjectKind::EndOfSubsection) work.services.ShowBox(kTextEndBarStays, BoxIcon::Critical);
  return kind != ObjectKind::EndOfSubsection && kind != ObjectKind::None;
}

void HideCurrent(PageWork& work) {
  work.document.Objects.CurrentObject = 0;
  HideOverlay(work);
  HideHandles(work);
}

void DeleteCurrent(PageWork& work) {
  const int row = work.document.Objects.CurrentObject;
  if (!MayDelete(work, row)) return;
  const bool isBand = work.document.Objects[row].Kind == ObjectKind::Subsection;
  work.services.PushUndo();
  DeleteObject(work.document, row);
  HideCurrent(work);
  if (isBand)
    work.services.BandsChanged();
  else
    work.services.FullRepaint();
}

void DeleteGroup(PageWork& work) {
  const std::vector<int> members = GroupMembers(work);
  if (members.empty()) return;
  work.services.PushUndo();
  for (const int row : members)
    work.document.Objects.ClearRow(row);
  HideCurrent(work);
  work.services.FullRepaint();
}

}  // namespace

void DeleteSelected(PageWork& work) {
  if (work.pointer.MultiSelected)
    DeleteGroup(work);
  else
    DeleteCurrent(work);
}

}  // namespace kev
