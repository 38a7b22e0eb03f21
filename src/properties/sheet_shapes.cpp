// SPDX-License-Identifier: MIT
// BOX, LINE, ANYLINE and CIRCLE. Only BOX and LINE refuse wide lines, and an ANYLINE may lie anywhere.
#include <array>

#include "document/position.h"
#include "properties/row_kinds.h"

namespace kev {
namespace {

using R = ObjectRecord;

constexpr auto kBoxRows = std::to_array<ObjectRow>({
    XRow(kTextDescribeXColumn),
    YRow(kTextDescribeYPosition),
    NumberRow<&R::Width>("Width", kTextDescribeWidth),
    NumberRow<&R::Height>("Height", kTextDescribeHeight),
    LineWidthRow(CheckLineWidth),
    ColourRow("Color", kTextDescribeColor),
    YesNoRow<&R::Filled>("Filled box", kTextDescribeFilledBox),
    DashedRow(),
    GridRow(kTextDescribeAlignToGrid),
    PrintRow(0),
    EndUserRow(),
});

constexpr auto kLineRows = std::to_array<ObjectRow>({
    XRow(kTextDescribeXColumn),
    {"X2 /Column", kColumnList, ReadText<&R::X2Value>, StoreX2, CheckX2, kDescribeX2InPlace},
    YRow(kTextDescribeYPosition),
    LineWidthRow(CheckLineWidth),
    ColourRow("Forecolor", kTextDescribeColor),
    DashedRow(),
    GridRow(kTextDescribeAlignToGrid),
    PrintRow(kTextDescribePrintAtRuntime),
    EndUserRow(),
});

constexpr auto kAnyLineRows = std::to_array<ObjectRow>({
    XRow(kTextDescribeXColumn),
    YRow(kTextDescribeYPosition, nullptr),
    NumberRow<&R::Width>("X plus:", kTextDescribeXPlus),
    NumberRow<&R::Height>("Y plus:", kTextDescribeYPlus),
    LineWidthRow(nullptr),
    DashedRow(),
    ColourRow("Forecolor", kTextDescribeColor),
    GridRow(kTextDescribeAlignToGrid),
    PrintRow(kTextDescribePrintAtRuntime),
    EndUserRow(),
});

void StoreDiameter(const RowTarget& target, std::string_view text) {
  target.Record().Width = target.Record().Height = Int32Of(text);
}

constexpr auto kCircleRows = std::to_array<ObjectRow>({
    XRow(kTextDescribeXColumn),
    YRow(kTextDescribeYPosition),
    {"Diameter", kPlainText, ReadNumber<&R::Width>, StoreDiameter, nullptr, kTextDescribeDiameter},
    LineWidthRow(nullptr),
    ColourRow("Color", kTextDescribeColor),
    GridRow(kTextDescribeAlignToGrid),
    PrintRow(kTextDescribePrintAtRuntime),
});

void MeasureLine(const RowTarget& target) {
  const Document& document = target.TheDocument();
  ObjectRecord& record = target.Record();
  const double x = PositionOrZero(record.XValue, document.Columns, *document.Page);
  record.Width = ToInt32(PositionOrZero(record.X2Value, document.Columns, *document.Page) - x);
}

}  // namespace

constexpr ObjectSheet kBoxSheet = {kTextSheetBoxOrQr, kBoxRows};
constexpr ObjectSheet kLineSheet = {kTextSheetLine, kLineRows, MeasureLine};
constexpr ObjectSheet kAnyLineSheet = {kTextSheetAnyLine, kAnyLineRows};
constexpr ObjectSheet kCircleSheet = {kTextSheetCircle, kCircleRows};

}  // namespace kev
