// SPDX-License-Identifier: MIT
#include "surface/qr_image.h"

#include <utility>

#include "base/files.h"

namespace kev {

QrImageFiles QrFilesOf(std::string_view imageName) {
  constexpr std::string_view kEnding = ".bmp";
  const std::size_t mark = imageName.rfind('\\');
  std::string base = JoinPath(imageName.substr(0, mark), imageName.substr(mark));
  base.resize(base.size() - kEnding.size());
  std::string png = base + ".png";
  std::string bitmap = base + std::string(kEnding);
  return {std::move(base), std::move(png), std::move(bitmap)};
}

std::array<ProgramStart, 2> QrTools(const std::string& programFolder, const QrImageFiles& files,
                                    const std::string& text) {
  return {ProgramStart{JoinPath(programFolder, "\\qrcode"), {"-o" + files.Png, text}},
          ProgramStart{JoinPath(programFolder, "\\png2bmp"), {files.Png, files.Bitmap}}};
}

bool MakeQrImage(PageWork& work, int objectIndex) {
  const ObjectTable& objects = std::as_const(work.document).Objects;
  if (objects[objectIndex].Kind != ObjectKind::Qr) return false;
  const std::string file = QrImageName(work.images, objectIndex, objects[objectIndex].Y);
  if (work.pictures.Qr != nullptr) {
    work.pictures.Qr->Make(objectIndex, objects[objectIndex], file);
    work.services.Renew(work);
  }
  if (objects[objectIndex].Kind != ObjectKind::Qr) return false;
  work.document.Objects[objectIndex].PictureFile = file;
  return true;
}

}  // namespace kev
