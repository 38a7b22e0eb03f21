// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include "document/settings.h"

namespace kev {

// Whether a text means something to the setting, so that what is kept is what was meant: a number where one
// is wanted, yes or no, a single character. An empty text does; names of papers are not judged here.
bool SettingIsUnderstood(Setting id, std::string_view text, const CodePage& page = CodePage::Default());

}  // namespace kev
