// SPDX-License-Identifier: MIT
// A window that shows one picture.
#pragma once

#include <QWidget>
#include <string>

#include "platform/images.h"

namespace kev::tool {

class PictureWindow final : public QWidget {
 public:
  // Native path of a picture that can be read.
  PictureWindow(ImageCache& images, std::string path);

 protected:
  // In the middle, as large as the window lets it be; small ones keep their size.
  void paintEvent(QPaintEvent* event) override;
  // Escape closes.
  void keyPressEvent(QKeyEvent* event) override;

 private:
  ImageCache& images_;
  std::string path_;
};

}  // namespace kev::tool
