// SPDX-License-Identifier: MIT
#include "app/message_texts.h"

#include <array>
#include <utility>

#include "base/code_page.h"
#include "base/reasons.h"
#include "base/text_numbers.h"

namespace kev {
namespace {

// In the order of FindingKind.
constexpr std::array<int, kFindingKinds> kFindingNumbers = {
    kTextFindingUnknownKey,      kTextFindingLostText,        kTextFindingDisarmedBlock,
    kTextFindingLateKey,         kTextFindingRepeatedKey,     kTextFindingDanglingColumn,
    kTextFindingValueOutOfRange, kTextFindingWillNotComeBack, kTextFindingMissingFile,
    kTextFindingValueChanges,    kTextFindingObjectLost,      kTextFindingObjectAppears,
    kTextFindingKindChanges,     kTextFindingColumnLost,      kTextFindingColumnAppears,
    kTextFindingPaintingStops,   kTextFindingNameWithColon,   kTextFindingPastPage,
    kTextFindingOutsideBodies,   kTextFindingMovesSubsection, kTextFindingRewriteDiffers};

constexpr auto kReasonNumbers = std::to_array<std::pair<std::string_view, int>>({
    {kReasonOutOfMemory, kTextReasonOutOfMemory},
    {kReasonNotRegularFile, kTextReasonNotRegularFile},
    {kReasonTooManyObjects, kTextReasonTooManyObjects},
    {kReasonTooManyColumns, kTextReasonTooManyColumns},
    {kReasonTooManyParts, kTextReasonTooManyParts},
    {kReasonTextsTooLarge, kTextReasonTextsTooLarge},
    {kReasonBlocksTooOften, kTextReasonBlocksTooOften},
    {kReasonPackedDamaged, kTextReasonPackedDamaged},
    {kReasonPackedTooLarge, kTextReasonPackedTooLarge},
    {kReasonNotPacked, kTextReasonNotPacked},
});

}  // namespace

int FindingTextNumber(FindingKind kind) {
  return kFindingNumbers.at(static_cast<std::size_t>(kind));
}

std::string NativeText(const LanguageTexts& texts, int number) {
  return CodePage::Default().ToUtf8(texts.Text(number));
}

std::string ReasonInLanguage(const LanguageTexts& texts, std::string_view reason) {
  for (const auto& [sentence, number] : kReasonNumbers) {
    if (sentence == reason) return NativeText(texts, number);
  }
  return std::string(reason);
}

}  // namespace kev
