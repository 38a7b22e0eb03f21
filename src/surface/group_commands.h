// SPDX-License-Identifier: MIT
// The commands of the group's menu and what their dialogs hold. Each is one event of the user's, with one
// snapshot and one repaint; without a group they do nothing. The members of the dialogs have the names of
// their controls.
#pragma once

#include <string>
#include <vector>

#include "surface/page_work.h"

namespace kev {

// Twips. Members that lie further below the topmost one are not pulled up to it.
inline constexpr int kFarthestAligned = 1000;

// `alignhor`: the members get the Y of the topmost one, and the group ends. Refused with a message, and
// without a snapshot, where one lies too far below.
void AlignHorizontally(PageWork& work);

// `placeselection`: the place of the group's left edge and of its topmost member.
struct PlaceSelection {
  std::string YPosition;           // from the top of the body that the topmost member lies in
  std::string Combocol;            // a position, or one of the items
  std::vector<std::string> Items;  // "$Col_01 = 2400"

  bool operator==(const PlaceSelection&) const = default;
};
PlaceSelection OpenedPlaceSelection(const PageWork& work);
// False when the dialog stays open: Y is below 0, or X is no position, which is told. What stood on a column
// is tied to it no longer.
bool AcceptPlaceSelection(PageWork& work, const PlaceSelection& dialog);

// `AlignToGridFrm`. A member is snapped within its body.
struct AlignToGrid {
  bool Check1 = false;  // snap now
  bool Check2 = false;  // set the property
  bool Combo1 = true;   // to yes

  bool operator==(const AlignToGrid&) const = default;
};
// With neither box ticked nothing happens.
void AcceptAlignToGrid(PageWork& work, const AlignToGrid& dialog);

// `Modifyenduser` and `PrintNoPrintFrm`: as the first member has it, and as all get it.
bool GroupIsModifiable(const PageWork& work);
void SetGroupModifiable(PageWork& work, bool modifiable);
bool GroupIsPrinted(const PageWork& work);
void SetGroupPrinted(PageWork& work, bool printed);

}  // namespace kev
