// SPDX-License-Identifier: MIT
// Where the pictures that a template names come from: a file, or an address that is fetched into the cache.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>

#include "app/folders.h"
#include "base/code_page.h"
#include "base/host.h"
#include "document/object_creation.h"

namespace kev {

inline constexpr std::string_view kCacheFolder = "\\Cache\\";

// "\Cache\" and the last part of the address, with every character that is not a letter, a digit, ".", "-"
// or "_" replaced by "_".
std::string CacheNameOf(std::string_view address);

// The file that a record's PictureFile means; nothing when there is none. A name of the cache lies in
// TempFolder, any other that begins with "\" in ProgramFolder, and what is not there relative to the
// template. `pictureFile` is in the code page of the template or, where such a file exists, native as the
// folders and the result are. Nothing lies in a folder whose name is empty.
std::optional<std::string> ResolvePictureFile(std::string_view pictureFile, const DesignerFolders& folders,
                                              std::string_view templateFolder, const CodePage& page);

class FolderPictures final : public PictureSource {
 public:
  // Told when a fetch has ended: the PictureFile that it was for, and whether the file is there now.
  using Arrived = std::function<void(const std::string& pictureFile, bool there)>;

  // Both outlive it.
  FolderPictures(Host& host, const DesignerFolders& folders);

  // Native bytes.
  void SetTemplateFolder(std::string folder) { templateFolder_ = std::move(folder); }
  const std::string& TemplateFolder() const { return templateFolder_; }
  // Of the texts that Look is given.
  void SetPage(const CodePage& page) { page_ = &page; }
  // Without it nothing is fetched; what an earlier run has fetched is shown all the same.
  void AllowRemote(bool allowed) { remoteAllowed_ = allowed; }
  void OnArrival(Arrived arrived) { fetches_->arrived = std::move(arrived); }

  PictureAnswer Look(std::string_view path) override;

 private:
  struct Fetches {
    std::set<std::string> underWay;  // by PictureFile, so that no file is fetched twice at a time
    Arrived arrived;
  };

  PictureAnswer LookRemote(const std::string& address);

  Host& host_;
  const DesignerFolders& folders_;
  const CodePage* page_ = &CodePage::Default();
  std::string templateFolder_;
  bool remoteAllowed_ = true;
  std::shared_ptr<Fetches> fetches_ = std::make_shared<Fetches>();
};

}  // namespace kev
