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

bool IsOfCache(std::string_view pictureFile) {
  return CodePage::Default().EqualsIgnoringCase(pictureFile.substr(0, kCacheFolder.size()), kCacheFolder);
}

bool IsAbsolute(std::string_view path) {
  return path.starts_with('/') || path.starts_with('\\');
}

// Names of files that the program made are native already; those in a template are in its code page.
std::optional<std::string> FindEitherWay(std::string_view name, std::string_view folder,
                                         const CodePage& page) {
  if (folder.empty() && !IsAbsolute(name)) return std::nullopt;
  if (auto found = FindFile(name, folder)) return found;
  const std::string native = page.ToUtf8(name);
  return native == name ? std::nullopt : FindFile(native, folder);
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
    const std::string_view name =
        pictureFile.substr(std::min(pictureFile.find_first_not_of("\\/"), pictureFile.size()));
    if (auto own =
            FindEitherWay(name, IsOfCache(pictureFile) ? folders.TempFolder : folders.ProgramFolder, page))
      return own;
  }
  return FindEitherWay(pictureFile, templateFolder, page);
}

FolderPictures::FolderPictures(Host& host, const DesignerFolders& folders) : host_(host), folders_(folders) {}

PictureAnswer FolderPictures::Look(std::string_view path) {
  if (const auto file = FindEitherWay(path, templateFolder_, *page_))
    return {std::string(path), ImageSizeOfFile(*file)};
  std::string address(path);
  const bool remote = ClassifyLink(address) == LinkKind::Remote;
  if (remote && MayBeFetched(Trim(path), address)) return LookRemote(address);
  return {std::string(kMissingPicture), std::nullopt};
}

PictureAnswer FolderPictures::LookRemote(const std::string& address) {
  const std::string pictureFile = CacheNameOf(address);
  if (!IsUsableCacheName(std::string_view(pictureFile).substr(kCacheFolder.size())))
    return {std::string(kMissingPicture), std::nullopt, true};
  const std::string file = InTempFolder(folders_, pictureFile);
  if (FileExists(file)) return {pictureFile, ImageSizeOfFile(file), true};
  if (!remoteAllowed_) return {std::string(kMissingPicture), std::nullopt, true};
  if (fetches_->underWay.insert(pictureFile).second) {
    // The answer may come when this object is gone.
    host_.FetchPicture(address, file, [fetches = std::weak_ptr(fetches_), pictureFile](bool there) {
      if (const auto alive = fetches.lock()) {
        alive->underWay.erase(pictureFile);
        if (alive->arrived) alive->arrived(pictureFile, there);
      }
    });
  }
  return {pictureFile, std::nullopt, true};
}

}  // namespace kev
