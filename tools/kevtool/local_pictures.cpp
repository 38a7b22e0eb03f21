// SPDX-License-Identifier: MIT
#include "local_pictures.h"

#include "app/image_size.h"
#include "app/picture_source.h"
#include "base/code_page.h"
#include "base/find_file.h"
#include "testrun/classify_link.h"

namespace kev::tool {

PictureAnswer LocalPictures::Look(std::string_view path) {
  const auto lookUp = [this](const std::string& in, const std::string& name) {
    return known_.NameIn(in, name);
  };
  if (const auto file = FindFile(CodePage::Default().ToUtf8(path), folder_, lookUp)) {
    return {std::string(path), ImageSizeOfFile(*file)};
  }
  std::string address(path);
  if (ClassifyLink(address) == LinkKind::Remote) return {CacheNameOf(address), std::nullopt};
  return {std::string(kMissingPicture), std::nullopt};
}

}  // namespace kev::tool
