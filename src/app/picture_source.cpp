// SPDX-License-Identifier: MIT
#include "app/picture_source.h"

#include <algorithm>

#include "app/image_size.h"
#include "base/files.h"
#include "base/text.h"
#include "testrun/classify_link.h"

namespace kev {
namespace {

constexpr std::size_t kLongestFileName = 255;

bool MayStandInCacheName(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '.' || c == '-' ||
         c == '_';
}

// Recovered work lies in the same folder and must not be replaced by, or mistaken for, a picture.
bool IsUsableCacheName(std::string_view name) {
  return name.find_first_not_of('.') != std::string_view::npos && name.size() <= kLongestFileName &&
         !CodePage::Default().Upper(name).starts_with("RECOVERED_");
}

// What stands for a value of the data, has another scheme, or names no host, is no address to ask.
bool MayBeFetched(std::string_view written, std::string_view address) {
  if (written.starts_with('@') || written.starts_with('$')) return false;
  if (!HasAddressPrefix(written) && written.find("://") != std::string_view::npos) return false;
  const std::size_t host = address.find("://") + 3;
  return host < address.size() && address[host] != '/';
}

}  // namespace

std::string CacheNameOf(std::string_view address) {
  std::string name(address.substr(address.rfind('/') + 1));
  std::replace_if(
      name.begin(), name.end(), [](char c) { return !MayStandInCacheName(c); }, '_');
  return std::string(kCacheFolder) + name;
}

std::optional<std::string> ResolvePictureFile(std::string_view pictureFile, const DesignerFolders& folders,
                                              std::string_view templateFolder, const CodePage& page) {
  if (pictureFile.starts_with('\\')) {
    const bool cached = pictureFile.starts_with(kCacheFolder);
    std::string own = JoinPath(cached ? folders.TempFolder : folders.ProgramFolder, pictureFile);
    if (FileExists(own)) return own;
  }
  // Names of files that the program made are native already.
  if (pictureFile.starts_with('/') && FileExists(std::string(pictureFile))) return std::string(pictureFile);
  return FindFile(page.ToUtf8(pictureFile), templateFolder);
}

FolderPictures::FolderPictures(Host& host, const DesignerFolders& folders) : host_(host), folders_(folders) {}

PictureAnswer FolderPictures::Look(std::string_view path) {
  if (const auto file = FindFile(page_->ToUtf8(path), templateFolder_))
    return {std::string(path), ImageSizeOfFile(*file)};
  std::string address(path);
  const bool remote = ClassifyLink(address) == LinkKind::Remote;
  if (remote && MayBeFetched(Trim(path), address)) return LookRemote(address);
  return {std::string(kMissingPicture), std::nullopt};
}

PictureAnswer FolderPictures::LookRemote(const std::string& address) {
  const std::string pictureFile = CacheNameOf(address);
  if (!IsUsableCacheName(std::string_view(pictureFile).substr(kCacheFolder.size())))
    return {std::string(kMissingPicture), std::nullopt};
  const std::string file = InTempFolder(folders_, pictureFile);
  if (FileExists(file)) return {pictureFile, ImageSizeOfFile(file)};
  if (fetches_->underWay.insert(pictureFile).second) {
    // The answer may come when this object is gone.
    host_.FetchPicture(address, file, [fetches = std::weak_ptr(fetches_), pictureFile](bool there) {
      if (const auto alive = fetches.lock()) {
        alive->underWay.erase(pictureFile);
        if (alive->arrived) alive->arrived(pictureFile, there);
      }
    });
  }
  return {pictureFile, std::nullopt};
}

}  // namespace kev
