// SPDX-License-Identifier: MIT
// PICTURE.
#include <array>

#include "properties/row_kinds.h"

namespace kev {
namespace {

using R = ObjectRecord;

constexpr RowEditor kPictureFile = FileButton("|Image file!*.bmp;*.jpg;*.jpeg;*.gif;*.png;*.svg|");

// What another character than these would do to the line of the template.
bool FitsTemplate(std::string_view path, const DocumentSettings& settings) {
  const char reserved[] = {',', ';', settings.OpenCharacter(), settings.CloseCharacter()};
  return path.find_first_of(std::string_view(reserved, sizeof reserved)) == std::string_view::npos;
}

// A picture of the data has no file yet, and one that is fetched need not be there yet.
bool CanBeShown(std::string_view path, PictureSource& pictures) {
  if (path.empty() || path.starts_with('@') || path.starts_with('$')) return true;
  const PictureAnswer answer = pictures.Look(path);
  const bool fetched = answer.File != path && answer.File != kMissingPicture;
  return fetched || answer.Size.has_value();
}

Verdict CheckFile(const RowTarget& target, std::string_view text) {
  const std::string_view path = Trim(text);
  const bool good =
      FitsTemplate(path, target.TheDocument().Settings) && CanBeShown(path, target.work.pictures);
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

// A picture that can't be had now leaves the object its size.
void TakePicture(const RowTarget& target) {
  ObjectRecord& record = target.Record();
  const PictureAnswer answer = target.work.pictures.Look(record.PicturePath);
  record.PictureFile = answer.File;
  if (answer.Size) FitPicture(record, *answer.Size);
}

}  // namespace

constexpr ObjectSheet kPictureSheet = {kTextSheetPicture, kRows, TakePicture};

}  // namespace kev
