// SPDX-License-Identifier: MIT
// LABEL and TEXTBOX.
#include <array>

#include "properties/row_kinds.h"

namespace kev {
namespace {

using R = ObjectRecord;

constexpr RowEditor kFormatList = OpenList("|Currency|#,###,##0.00|#,###, K|###,, M|");
constexpr RowEditor kCaseList = ClosedList("|none|UPPER|lower|First Up|");

constexpr auto kLabelRows = std::to_array<ObjectRow>({
    ShownTextRow("Expression", kTextDescribeExpression),
    XRow(kTextDescribeXColumn, CheckXNotNegative),
    YRow(kTextDescribeYPosition),
    AlignmentRow(kTextDescribeAlignment),
    TrimmedRow<&R::Link>("Hyperlink", kTextDescribeHyperlink),
    GridRow(kTextDescribeAlignToGrid),
    PrintRow(kTextDescribePrintAtRuntime),
    FontRow(kTextDescribeFont),
    YesNoRow<&R::Underline>("Font underline", kTextDescribeFontUnderline),
    Only(RowPlace::DockedOnly, YesNoRow<&R::Strikethrough>("Font strike", kTextDescribeFontStrike)),
    Only(RowPlace::FloatingOnly, YesNoRow<&R::Strikethrough>("Font Strike", kTextDescribeFontStrike)),
    CharsetRow(kTextDescribeCharset),
    ColourRow("Font color", kTextDescribeColor),
    TrimmedRow<&R::Format>("Format", kTextDescribeFormat, kFormatList),
    {"Text conversion", kCaseList, ReadCaseMode, StoreCaseMode, nullptr, kTextDescribeTextConversion},
    XlsTypeRow(kTextDescribeXlsType),
    EndUserRow(),
    OptionalRow<&R::Stretch>("Stretch Text", kTextDescribeStretchText),
});

std::string ReadBorder(const RowSource& source) {
  return ItemOfCode(kBorderList.tail, source.Record().TextBoxFrameValue.value_or(""));
}

// The style stands in a list of the template, where nothing but a whole number is one.
Verdict CheckBorder(const RowTarget&, std::string_view text) {
  std::string_view digits = CodeOfItem(text);
  if (digits.empty()) return std::nullopt;
  if (digits.starts_with('-')) digits.remove_prefix(1);
  const bool whole = !digits.empty() && digits.find_first_not_of("0123456789") == std::string_view::npos;
  return whole ? Verdict() : Refusal();
}

void StoreBorder(const RowTarget& target, std::string_view text) {
  StoreOptional<&R::TextBoxFrameValue>(target, CodeOfItem(text));
}

std::string ReadPassword(const RowSource& source) {
  return std::string(source.Record().TextBoxExtraValue.value_or(0) != 0 ? kYes : kNo);
}

void StorePassword(const RowTarget& target, std::string_view text) {
  text = Trim(text);
  if (text == kYes) target.Record().TextBoxExtraValue = 1;
  if (text == kNo) target.Record().TextBoxExtraValue = 0;
}

constexpr auto kTextBoxRows = std::to_array<ObjectRow>({
    ShownTextRow("Initial expression", 0, nullptr),
    OptionalRow<&R::CommandPayload>("@Variable"),
    XRow(0, CheckXNotNegative),
    YRow(0),
    NumberRow<&R::Width>("Width"),
    AlignmentRow(0),
    GridRow(0),
    PrintRow(0),
    FontRow(0),
    YesNoRow<&R::Underline>("Font underline"),
    YesNoRow<&R::Strikethrough>("Font Strike"),
    CharsetRow(0),
    ColourRow("Font color", 0),
    {"Border style", kBorderList, ReadBorder, StoreBorder, CheckBorder},
    {"Back color", kColourButton, ReadBackColour, StoreBackColour},
    XlsTypeRow(0),
    EndUserRow(),
    Only(RowPlace::DockedOnly, {"Password field", kYesNoOpenEnd, ReadPassword, StorePassword}),
});

}  // namespace

constexpr ObjectSheet kLabelSheet = {kTextSheetLabel, kLabelRows};
constexpr ObjectSheet kTextBoxSheet = {kTextSheetTextBox, kTextBoxRows};

}  // namespace kev
