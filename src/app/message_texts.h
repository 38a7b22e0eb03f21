// SPDX-License-Identifier: MIT
// Findings and reasons of failures in the language of the user.
#pragma once

#include <string>
#include <string_view>

#include "app/language.h"
#include "base/finding.h"

namespace kev {

// The number of the text that stands for a kind of finding.
int FindingTextNumber(FindingKind kind);

// A reason of base/reasons.h in the language of the texts; any other, such as the system's own sentence,
// stays. Native bytes, as messages carry them behind their text.
std::string ReasonInLanguage(const LanguageTexts& texts, std::string_view reason);

// A text of the language file as native bytes.
std::string NativeText(const LanguageTexts& texts, int number);

}  // namespace kev
