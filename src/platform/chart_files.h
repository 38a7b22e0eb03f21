// SPDX-License-Identifier: MIT
// Draws the images of charts into their files, for the window that shows them.
#pragma once

#include <QWidget>
#include <string>

#include "app/chart_images.h"
#include "platform/fonts.h"
#include "platform/images.h"

namespace kev {

class ChartFiles final : public ChartPainter {
 public:
  // All outlive it.
  ChartFiles(FontCache& fonts, ImageCache& images, const QWidget& window)
      : fonts_(fonts), images_(images), window_(window) {}

  double DeviceRatio() const override { return window_.devicePixelRatioF(); }
  bool SaveChart(const ChartPicture& picture, double scale, const std::string& path) override;
  void ShowPointer(int number) override;

 private:
  FontCache& fonts_;
  ImageCache& images_;
  const QWidget& window_;
};

}  // namespace kev
