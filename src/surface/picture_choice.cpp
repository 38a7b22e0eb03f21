// SPDX-License-Identifier: MIT
// The file of a new picture.
#include "base/text_numbers.h"
#include "document/picture_path.h"
#include "surface/insertion.h"
#include "surface/selection.h"

namespace kev {
namespace {

constexpr std::string_view kPictureEndings =
    "*.bmp *.jpg *.jpeg *.gif *.png *.svg *.BMP *.JPG *.JPEG *.GIF *.PNG *.SVG";

void TellCharacter(InsertionWork& work, const std::string& missing) {
  const PageServices& services = work.page.services;
  work.host.ShowMessage({services.Text(kTextProgramTitle), services.Text(kTextCharacterNotInPage) + " ",
                         missing, BoxIcon::Critical});
}

}  // namespace

void ChoosePicture(InsertionWork& work, int row) {
  PageWork& page = work.page;
  const FileChoice choice{
      page.services.Text(kTextMenuPicture), {}, {}, {{"Image file", std::string(kPictureEndings)}}};
  const std::optional<std::string> chosen = work.host.ChooseFileToOpen(choice);
  if (!chosen || chosen->empty()) return;
  std::string missing;
  const std::optional<std::string> path = page.document.Page->FromUtf8(*chosen, &missing);
  if (!path) return TellCharacter(work, missing);
  if (!MayShowPicture(*path, page.document.Settings, work.pictures)) {
    page.services.ShowBox(kTextPictureRefused, BoxIcon::Critical);
    return;
  }
  ObjectRecord& record = page.document.Objects[row];
  record.PicturePath = record.Content = *path;
  TakePicture(record, work.pictures);
  page.services.FullRepaint();
  SelectObject(page, row);
}

}  // namespace kev
