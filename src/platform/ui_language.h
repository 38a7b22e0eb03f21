// SPDX-License-Identifier: MIT
// The words that the window system shows by itself (file dialogs, buttons of boxes) in the program's
// language.
#pragma once

#include "app/language.h"

class QApplication;

namespace kev {

class QtHost;

// `letter` as in the language file. A language that is not installed leaves the system's English.
void ApplyUiLanguage(QApplication& application, char letter);
void SetButtonCaptions(QtHost& host, const LanguageTexts& texts);

}  // namespace kev
