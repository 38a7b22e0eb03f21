// SPDX-License-Identifier: MIT
// The images of the QR codes on the page: which of them this run has made, and the tools that make the others
// beside the work on the page.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>

#include "app/folders.h"
#include "base/file_stamp.h"
#include "base/host.h"
#include "document/document.h"
#include "surface/visuals.h"

namespace kev {

// One image for each row. What can't be made is not tried again before its text or its place changes, or
// before it is asked for by Make.
class QrImages final : public QrPictures {
 public:
  // All three outlive it.
  QrImages(Host& host, const DesignerFolders& folders, const Document& document)
      : host_(host), folders_(folders), document_(document) {}

  // Called from an event when everything that was begun beside the page has ended: it wants to be painted
  // again.
  void OnMade(std::function<void()> made) { made_ = std::move(made); }

  // True only for an image that this run made of this text and that nobody has touched since. Begins to make
  // it where it is not there; a row whose tools still run has to wait for them.
  bool IsReady(int row, const ObjectRecord& record, const std::string& file) override;
  void Make(int row, const ObjectRecord& record, const std::string& file) override;

  // The end of the run: tools are stopped, images are deleted, and no others are made.
  void End();

 private:
  enum class State : std::uint8_t { Waiting, Running, Made, Failed };
  struct Image {
    std::string File;  // as PictureFile names it
    std::string Text;  // in the page of the document
    State Now = State::Waiting;
    bool Begun = false;                // the files of this name are those of this run
    std::size_t Step = 0;              // of the tools, the next one
    std::optional<ProcessId> Process;  // the tool that runs
    FileStamp Left;                    // of the bitmap, once it is made
    int Waiters = 0;                   // calls of Make that paint themselves
  };

  static bool IsFor(const Image& image, const std::string& file, const std::string& text) {
    return image.File == file && image.Text == text;
  }
  bool HasGoodImage(int row, const std::string& file, const std::string& text) const;
  // The row's image is to be this one; the one before it is deleted.
  void Want(int row, const std::string& file, const std::string& text);
  void Begin(int row);
  // Starts the next tool, passing over those that can't be started.
  void Continue(int row);
  void ToolEnded(int row);
  void BeginWaiting();
  bool SomethingRuns() const;
  // False when the program ends before the tools do.
  bool WaitFor(int row);
  void Discard(const Image& image);

  Host& host_;
  const DesignerFolders& folders_;
  const Document& document_;
  std::function<void()> made_;
  std::map<int, Image> images_;
  bool pageIsOld_ = false;
  bool over_ = false;
  // A tool may end when this object is gone.
  std::shared_ptr<QrImages*> self_ = std::make_shared<QrImages*>(this);
};

}  // namespace kev
