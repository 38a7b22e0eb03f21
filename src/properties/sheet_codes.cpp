// SPDX-License-Identifier: MIT
// BARCODE and QR.
#include <array>

#include "barcode/barcode_kinds.h"
#include "properties/row_kinds.h"

namespace kev {
namespace {

using R = ObjectRecord;

// Not all names are offered: one more is shown and understood.
constexpr RowEditor kSymbologyList =
    ClosedList("|STANDARD 3-9|2 OF 5 INTERLEAVE|2 OF 5 INDUSTRIAL|2 OF 5 STANDARD|EAN-8|EAN-13|128 B|128 C|");
constexpr RowEditor kBarHeightArrows = Arrows("|1|5000|10|");
constexpr RowEditor kBarWidthArrows = Arrows("|1|100|");

std::string ReadSymbology(const RowSource& source) {
  return std::string(KindName(Int32Of(source.Record().BarcodeKind)));
}

Verdict CheckSymbology(const RowTarget&, std::string_view text) {
  if (KindFromName(Trim(text))) return std::nullopt;
  return Refusal{.Words = std::string(kNoSuchKind)};
}

void StoreSymbology(const RowTarget& target, std::string_view text) {
  if (const std::optional<int> kind = KindFromName(Trim(text)))
    target.Record().BarcodeKind = std::to_string(*kind);
}

constexpr auto kBarcodeRows = std::to_array<ObjectRow>({
    {"Barcode type", kSymbologyList, ReadSymbology, StoreSymbology, CheckSymbology, kTextDescribeBarcodeType},
    XRow(kTextDescribeXColumn),
    YRow(kTextDescribeYPosition),
    ContentRow("Expression", kTextDescribeExpression),
    TrimmedRow<&R::BarcodeSample>("Sample value", kTextDescribeSampleValue),
    NumberRow<&R::Height>("Height", kTextDescribeHeight, nullptr, kBarHeightArrows),
    NumberRow<&R::BarWidth>("Barwidth", kTextDescribeBarWidth, nullptr, kBarWidthArrows),
    ColourRow("Color", kTextDescribeColor),
    YesNoRow<&R::VerticalBar>("Vertical", kTextDescribeVertical),
    GridRow(kTextDescribeAlignToGrid),
    PrintRow(kTextDescribePrintAtRuntime),
    EndUserRow(),
});

// The page always shows the specimen of the symbology; a sample that was typed stays only where there is
// none.
void TakeSpecimen(const RowTarget& target) {
  const std::string_view specimen = SampleForKind(Int32Of(target.Record().BarcodeKind));
  if (!specimen.empty()) target.Record().BarcodeSample = specimen;
}

// A code without a size can't be seen: what is not above 0 is put back without a word.
Verdict CheckQrSize(const RowTarget&, std::string_view text) {
  return Int32Of(text) > 0 ? Verdict() : Refusal();
}

void StoreQrSize(const RowTarget& target, std::string_view text) {
  target.Record().Width = target.Record().Height = Int32Of(text);
}

constexpr auto kQrRows = std::to_array<ObjectRow>({
    ContentRow("Text", 0),
    XRow(0),
    YRow(0),
    {"Height/width", kPlainText, ReadNumber<&R::Height>, StoreQrSize, CheckQrSize},
    ColourRow("Color", 0),
    GridRow(0),
    PrintRow(0),
    EndUserRow(),
});

}  // namespace

constexpr ObjectSheet kBarcodeSheet = {kTextSheetBarcode, kBarcodeRows, TakeSpecimen};
constexpr ObjectSheet kQrSheet = {kTextSheetBoxOrQr, kQrRows};

}  // namespace kev
