// SPDX-License-Identifier: MIT
// The file of a new picture.
#include <algorithm>

#include "base/numbers.h"
#include "base/text_numbers.h"
#include "surface/insertion.h"
#include "surface/selection.h"

namespace kev {
namespace {

constexpr std::string_view kPictureEndings =
    "*.bmp *.jpg *.jpeg *.gif *.png *.svg *.BMP *.JPG *.JPEG *.GIF *.PNG *.SVG";

// These part the items of a template and can't stand inside one.
bool MayStandInTemplate(std::string_view path, const DocumentSettings& settings) {
  const auto acts = [&](char c) {
    return c == ',' || c == ';' || settings[Setting::Open].find(c) != std::string::npos ||
           settings[Setting::Close].find(c) != std::string::npos;
  };
  return std::none_of(path.begin(), path.end(), acts);
}

void TellCharacter(InsertionWork& work, const std::string& missing) {
  const PageServices& services = work.page.services;
  work.host.ShowMessage({services.Text(kTextProgramTitle), services.Text(kTextCharacterNotInPage) + " ",
                         missing, BoxIcon::Critical});
}

// The size is the picture's own until the user gives it another.
void TakePicture(ObjectRecord& record, const std::string& path, const PictureAnswer& answer) {
  record.PicturePath = record.Content = path;
  record.PictureFile = answer.File;
  record.Width = ToInt32(answer.Size->Width);
  record.Height = ToInt32(answer.Size->Height);
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
  const PictureAnswer answer = work.pictures.Look(*path);
  if (!answer.Size || !MayStandInTemplate(*path, page.document.Settings)) {
    page.services.ShowBox(kTextPictureRefused, BoxIcon::Critical);
    return;
  }
  TakePicture(page.document.Objects[row], *path, answer);
  page.services.FullRepaint();
  SelectObject(page, row);
}

}  // namespace kev
