// SPDX-License-Identifier: MIT
// Ctrl+Y in a text field of the main window.
#pragma once

#include <QLineEdit>

namespace kev {

// Lets Ctrl+Y redo the typing in `line`, whatever the desktop's own key for that is. The menu's Redo, with the
// same key, would change the page below what is being typed. `focused` has the keys: the line itself, or the
// list that it belongs to, which hands them on past every filter of the line.
void TakeRedoKey(QWidget& focused, QLineEdit& line);

}  // namespace kev
