// SPDX-License-Identifier: MIT
// What the form `Recover_form` shows and does: the recovery files that earlier runs left, one of which may be
// opened at this start.
#pragma once

#include <string>
#include <vector>

#include "app/language.h"
#include "app/recovery.h"
#include "base/host.h"

namespace kev {

// Paths and names are native bytes.
struct RecoverDialog {
  std::string Folder;
  std::vector<std::string> Files;  // what `File1` lists
  int Selected = -1;               // in Files

  // What the user chose: held from that moment on. Without a choice the flag is false.
  bool Recovering = false;
  std::string RecoveredTarget;
  std::string DocumentTitle;
  Recovery Held;

  // The two frames of actions show while something is selected.
  bool ActionsShown() const { return Selected >= 0; }
};

RecoverDialog ListRecovered(std::string folder);

// Anything outside the list selects nothing.
void SelectRecovered(RecoverDialog& dialog, int index);
// `recover`: true when the form may close. A file that has gone or that another run has taken meanwhile is
// only no longer listed.
bool Recover(RecoverDialog& dialog);
// `delete`: asks nothing.
void DeleteRecovered(RecoverDialog& dialog);
// `delete_all`: all that is listed, if the user says yes.
void DeleteAllRecovered(RecoverDialog& dialog, Host& host, const LanguageTexts& texts);

}  // namespace kev
