// SPDX-License-Identifier: MIT
// The pictures that lie beside a template. An address is named as the designer would keep it, and never
// fetched.
#pragma once

#include <string>

#include "base/known_folders.h"
#include "document/object_creation.h"

namespace kev::tool {

class LocalPictures final : public PictureSource {
 public:
  // What is known of the folders outlives it.
  LocalPictures(std::string folder, KnownFolders& known) : folder_(std::move(folder)), known_(known) {}
  PictureAnswer Look(std::string_view path) override;

 private:
  std::string folder_;
  KnownFolders& known_;
};

}  // namespace kev::tool
