// SPDX-License-Identifier: MIT
// The image of a QR code: two tools beside the program make it, a picture first and a bitmap of that then.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "base/host.h"
#include "surface/page_work.h"

namespace kev {

// Native paths.
struct QrImageFiles {
  std::string Base;  // without an ending; where a file of this name can be opened, no tool is run
  std::string Png, Bitmap;
};
// `imageName` as QrImageName gives it.
QrImageFiles QrFilesOf(std::string_view imageName);

// What is to be started, one behind the other. The text is UTF-8.
std::array<ProgramStart, 2> QrTools(const std::string& programFolder, const QrImageFiles& files,
                                    const std::string& text);

// Makes the image of the QR in the row, waits for it and names it in PictureFile, also where it could not be
// made. False where the row holds no QR, or none any more behind the wait.
bool MakeQrImage(PageWork& work, int objectIndex);

}  // namespace kev
