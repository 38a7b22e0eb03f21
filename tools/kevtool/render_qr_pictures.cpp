// SPDX-License-Identifier: MIT
#include "render_qr_pictures.h"

#include "base/files.h"
#include "platform/text_bridge.h"
#include "surface/qr_image.h"

namespace kev::tool {

std::string RenderQrPictures::Folder() const {
  return folder_.isValid() ? ToNative(folder_.path()) : std::string();
}

bool RenderQrPictures::IsReady(int row, const ObjectRecord& record, const std::string& file) {
  const auto [known, isNew] = made_.try_emplace(row, false);
  if (isNew) known->second = folder_.isValid() && Run(file, page_.ToUtf8(record.Content));
  return known->second;
}

bool RenderQrPictures::Run(const std::string& file, const std::string& text) {
  const QrImageFiles files = QrFilesOf(file);
  for (const ProgramStart& tool : QrTools(programFolder_, files, text))
    if (const auto process = processes_.Start(tool, [] {})) processes_.Wait(*process);
  return FileExists(files.Bitmap);
}

std::vector<int> RenderQrPictures::Failed() const {
  std::vector<int> rows;
  for (const auto& [row, made] : made_)
    if (!made) rows.push_back(row);
  return rows;
}

}  // namespace kev::tool
