// SPDX-License-Identifier: MIT
// PICTURE.
#include <array>

#include "document/picture_path.h"
#include "properties/row_kinds.h"

namespace kev {
namespace {

using R = ObjectRecord;

constexpr RowEditor kPictureFile = FileButton("|Image file!*.bmp;*.jpg;*.jpeg;*.gif;*.png;*.svg|");

Verdict CheckFile(const RowTarget& target, std::string_view text) {
  const bool good = MayShowPicture(Trim(text), target.TheDocument().Settings, target.work.pictures);
  return good ? Verdict() : RefusedWith(kTextPictureRefused);
}

void StoreFile(const RowTarget& target, std::string_view text) {
  target.Record().PicturePath = target.Record().Content = Trim(text);
}

// A size that is typed is kept.
template <auto Size, auto Fixed>
void StoreFixedSize(const RowTarget& target, std::string_view text) {
  StoreNumber<Size>(target, text);
  target.Record().*Fixed = kTrue;
}

// A side is calculated where it is not fixed.
template <auto Fixed>
std::string ReadCalculated(const RowSource& source) {
  return std::string(source.Record().*Fixed == kFalse ? kYes : kNo);
}
template <auto Fixed>
void StoreCalculated(const RowTarget& target, std::string_view text) {
  text = Trim(text);
  if (text == kYes) target.Record().*Fixed = kFalse;
  if (text == kNo) target.Record().*Fixed = kTrue;
}

template <auto Fixed>
constexpr ObjectRow CalculatedRow(std::string_view caption, int description) {
  return {caption, kYesNo, ReadCalculated<Fixed>, StoreCalculated<Fixed>, nullptr, description};
}

constexpr auto kRows = std::to_array<ObjectRow>({
    {"File", kPictureFile, ReadText<&R::PicturePath>, StoreFile, CheckFile, kTextDescribePictureFile},
    XRow(kTextDescribeXColumn),
    YRow(kTextDescribeYPosition, nullptr),
    {"Width", kPlainText, ReadNumber<&R::Width>, StoreFixedSize<&R::Width, &R::PictureFixedWidth>,
     CheckNotNegative, kTextDescribeWidth},
    {"Height", kPlainText, ReadNumber<&R::Height>, StoreFixedSize<&R::Height, &R::PictureFixedHeight>,
     CheckNotNegative, kTextDescribeHeight},
    CalculatedRow<&R::PictureFixedWidth>("Calculate width at runtime", kTextDescribeWidthAtRuntime),
    CalculatedRow<&R::PictureFixedHeight>("Calculate height at runtime", kTextDescribeHeightAtRuntime),
    PrintRow(kTextDescribePrintAtRuntime),
    TrimmedRow<&R::Link>("Hyperlink", kTextDescribeHyperlink),
    GridRow(kTextDescribeAlignToGrid),
    EndUserRow(),
});

void ShowPicture(const RowTarget& target) {
  TakePicture(target.Record(), target.work.pictures);
}

}  // namespace

constexpr ObjectSheet kPictureSheet = {kTextSheetPicture, kRows, ShowPicture};

}  // namespace kev
