// SPDX-License-Identifier: MIT
// Any bytes as a compiled language file.
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "app/language.h"
#include "base/shift_text.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  for (const char language : {'E', 'S', '\0'}) {
    const kev::Result<kev::LanguageTexts> texts = kev::LoadLanguageBytes(bytes, language);
    if (!texts) continue;
    for (int number = 0; number <= kev::kHighestTextNumber; ++number) {
      if (texts->Text(number).size() > size) std::abort();
    }
  }
  // A blank stays one, and whatever becomes one does not come back.
  if (kev::ShiftText(bytes, kev::kLanguageFileKey).size() != size) std::abort();
  return 0;
}
