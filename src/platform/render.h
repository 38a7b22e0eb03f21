// SPDX-License-Identifier: MIT
// The whole page into a file, as the designer paints it. Needs a QGuiApplication, but no display.
#pragma once

#include <QImage>
#include <optional>
#include <string>

#include "app/folders.h"
#include "base/result.h"
#include "document/document.h"
#include "surface/visuals.h"

namespace kev {

struct RenderOptions {
  double ZoomFactor = 1;
  double scale = 1;  // device pixels for each logical pixel
  DisplayFilter filter = DisplayFilter::All;
  bool grid = false;
  DesignerFolders folders;     // where the pictures of the page lie
  std::string TemplateFolder;  // native; empty for a document without a file
  WorkImages images;
  MadePictures pictures = {};
  // Learns which bar codes could not be painted to their end; it may be null.
  BarcodeState* bars = nullptr;
};

// A page of more pixels than this is refused instead of filling the memory.
inline constexpr double kMostPixels = 200e6;

// The document as it was read; the geometry chain runs on it, and it learns what painting finds out. The
// failure is a sentence.
Result<QImage, std::string> RenderToImage(Document& document, const RenderOptions& options);

// By the ending of the path: .png, .pdf or .svg. The file appears whole or not at all. Returns why there is
// no file.
std::optional<std::string> RenderToFile(Document& document, const RenderOptions& options,
                                        const std::string& path);

}  // namespace kev
