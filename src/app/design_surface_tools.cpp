// SPDX-License-Identifier: MIT
// Tools that wait for a click, and what they put on the page.
#include <utility>

#include "app/design_surface.h"
#include "app/designer.h"

namespace kev {

void DesignSurface::ToggleTool(std::string_view tool) {
  if (tracker_.Busy()) return CommandsChanged();  // the button is up again
  CommitOpenEdits();
  designer_.GuardedView([&] {
    const bool waits = pointer_.PendingTool == tool;
    pointer_.PendingTool = waits ? std::string_view() : tool;
    CommandsChanged();
  });
}

InsertionWork DesignSurface::Inserting(PageWork& work) {
  return {work, designer_.Last(), designer_.Pictures(), designer_.TheHost(), designer_.SampleDataPath()};
}

// The tool waits for one click only, whatever becomes of it.
void DesignSurface::RunPendingTool() {
  const std::optional<Insertion> what = InsertionOfTool(std::exchange(pointer_.PendingTool, {}));
  CommandsChanged();
  if (!what) return;
  PageWork work = Work();
  InsertionWork insertion = Inserting(work);
  Insert(insertion, *what);
}

}  // namespace kev
