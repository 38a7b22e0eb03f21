// SPDX-License-Identifier: MIT
#include "document/picture_path.h"

namespace kev {
namespace {

// These part the items of a template and can't stand inside one.
bool FitsTemplate(std::string_view path, const DocumentSettings& settings) {
  const char reserved[] = {',', ';', settings.OpenCharacter(), settings.CloseCharacter()};
  return path.find_first_of(std::string_view(reserved, sizeof reserved)) == std::string_view::npos;
}

// A picture of the data has no file yet; that of an address is the viewer's to fetch, whatever is fetched here.
bool CanBeShown(std::string_view path, PictureSource& pictures) {
  if (path.empty() || path.starts_with('@') || path.starts_with('$')) return true;
  const PictureAnswer answer = pictures.Look(path);
  return answer.Remote || answer.Size.has_value();
}

}  // namespace

bool MayShowPicture(std::string_view path, const DocumentSettings& settings, PictureSource& pictures) {
  return FitsTemplate(path, settings) && CanBeShown(path, pictures);
}

void TakePicture(ObjectRecord& record, PictureSource& pictures) {
  const PictureAnswer answer = pictures.Look(record.PicturePath);
  record.PictureFile = answer.File;
  if (answer.Size) FitPicture(record, *answer.Size);
}

}  // namespace kev
