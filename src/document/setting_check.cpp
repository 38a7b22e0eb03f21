// SPDX-License-Identifier: MIT
#include "document/setting_check.h"

#include "base/holds_number.h"

namespace kev {

bool SettingIsUnderstood(Setting id, std::string_view text, const CodePage& page) {
  if (text.empty()) return true;
  const std::string capitals = page.Upper(text);
  const auto beginsWith = [&](std::string_view letters) { return letters.find(capitals[0]) != letters.npos; };
  switch (RowOf(id).normalise) {
    case Normalise::OneCharacter:
      return text.size() == 1;
    case Normalise::FileFormat:
    case Normalise::SpacingStep:
    case Normalise::Number:
    case Normalise::ZoomPercent:
      return HoldsNumber(text);
    case Normalise::YesWord:
      return beginsWith("N0") || capitals == "1" || capitals == "Y" || capitals == "YES";
    case Normalise::YesLetter:
    case Normalise::YesOrNo:
      return beginsWith("YN10");
    case Normalise::YesOrNoLetter:
      return beginsWith("YN");
    case Normalise::AsRead:
      break;
  }
  if (id == Setting::Orientation) return beginsWith("12");
  if (id == Setting::ALWAYSFIT) return beginsWith("YN10");
  return (id != Setting::MAXY && id != Setting::Copies) || HoldsNumber(text);
}

}  // namespace kev
