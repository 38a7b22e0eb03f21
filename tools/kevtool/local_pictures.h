// SPDX-License-Identifier: MIT
// The pictures that lie beside a template. An address is named as the designer would keep it, and never
// fetched.
#pragma once

#include <string>

#include "document/object_creation.h"

namespace kev::tool {

class LocalPictures final : public PictureSource {
 public:
  explicit LocalPictures(std::string folder) : folder_(std::move(folder)) {}
  PictureAnswer Look(std::string_view path) override;

 private:
  std::string folder_;
};

}  // namespace kev::tool
