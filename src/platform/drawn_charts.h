// SPDX-License-Identifier: MIT
// The charts of a page that is painted into a file: drawn as shapes where they stand, so that they are sharp
// at every scale and stay drawings in a PDF or SVG file. No image file is made.
#pragma once

#include <string>

#include "platform/fonts.h"
#include "platform/images.h"
#include "surface/visuals.h"

namespace kev {

class DrawnCharts final : public ChartPictures {
 public:
  // Both outlive it.
  DrawnCharts(FontCache& fonts, ImageCache& images) : fonts_(fonts), images_(images) {}

  bool IsReady(int row, const ObjectRecord& record, const std::string& file, double zoom) override;

 private:
  FontCache& fonts_;
  ImageCache& images_;
};

}  // namespace kev
