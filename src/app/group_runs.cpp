// SPDX-License-Identifier: MIT
#include "app/group_runs.h"

#include "app/designer.h"
#include "base/text_numbers.h"

namespace kev {

PlaceSelectionRun::PlaceSelectionRun(Designer& designer)
    : designer_(designer), state_(OpenedPlaceSelection(designer.Surface().Work())) {}

const CodePage& PlaceSelectionRun::Page() const {
  return *designer_.OpenDocument().Page;
}

bool PlaceSelectionRun::Accept() {
  bool accepted = false;
  const bool done = designer_.Guarded([&] {
    PageWork work = designer_.Surface().Work();
    accepted = AcceptPlaceSelection(work, state_);
  });
  return done && accepted;
}

void PlaceSelectionRun::RefuseCharacter(const std::string& character) {
  designer_.ShowText(kTextCharacterNotInPage, BoxIcon::Critical, character);
}

void AlignToGridRun::Accept(const AlignToGrid& state) {
  state_ = state;
  designer_.Guarded([this] {
    PageWork work = designer_.Surface().Work();
    AcceptAlignToGrid(work, state_);
  });
}

void GroupFlagRun::Accept(bool state) {
  state_ = state;
  designer_.Guarded([this] {
    PageWork work = designer_.Surface().Work();
    store_(work, state_);
  });
}

}  // namespace kev
