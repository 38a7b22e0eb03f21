// SPDX-License-Identifier: MIT
// The images of QR codes for a page that is rendered once.
#pragma once

#include <QTemporaryDir>
#include <map>
#include <string>

#include "platform/processes.h"
#include "surface/visuals.h"

namespace kev::tool {

// Made by the tools beside kevtool in a folder of its own, which goes with this object.
class RenderQrPictures final : public QrPictures {
 public:
  // Native path; the page outlives it.
  RenderQrPictures(std::string programFolder, const CodePage& page)
      : programFolder_(std::move(programFolder)), page_(page) {}

  // Where the images lie, for their names; empty where no folder could be made.
  std::string Folder() const;
  // Waits for the tools at the first call for a row.
  bool IsReady(int row, const ObjectRecord& record, const std::string& file) override;
  // Rows whose image could not be made.
  std::vector<int> Failed() const;

 private:
  bool Run(const std::string& file, const std::string& text);

  QTemporaryDir folder_;
  Processes processes_;
  std::string programFolder_;
  const CodePage& page_;
  std::map<int, bool> made_;
};

}  // namespace kev::tool
