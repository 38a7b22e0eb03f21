// SPDX-License-Identifier: MIT
#include "surface/selection.h"

namespace kev {

int HitTest(const PageWork&, CanvasPoint) { return 0; }
void SelectObject(PageWork&, int) {}
void SelectAtPointer(PageWork&) {}
void ShowCurrentAgain(PageWork&) {}
void Deselect(PageWork&) {}
void EndGroup(PageWork&) {}
void HideHandles(PageWork&) {}
void HideOverlay(PageWork&) {}
void ShowHandles(PageWork&, std::string_view) {}
void PlaceHandles(PageWork&, int) {}
void ShowBoxOverlay(PageWork&, int) {}
bool MayJoinGroup(const PageWork&, int) { return true; }
void SelectAll(PageWork&) {}
std::string SelectionText(const PageWork&) { return {}; }

}  // namespace kev
