// SPDX-License-Identifier: MIT
#include "surface/page_keys.h"

namespace kev {

KeyEffect EffectOfKey(const PageWork&, int, int) { return KeyEffect::Nothing; }
void BeginTextEdit(PageWork&, TextEdit&) {}
void ChangeText(PageWork&, TextEdit&, std::string) {}
void CommitTextEdit(PageWork&, TextEdit&) {}
void CancelTextEdit(PageWork&, TextEdit&) {}
void DeleteSelected(PageWork&) {}
void MoveSubsectionUp(PageWork&) {}
void MoveSubsectionDown(PageWork&) {}

}  // namespace kev
