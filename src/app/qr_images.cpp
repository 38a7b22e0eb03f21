// SPDX-License-Identifier: MIT
#include "app/qr_images.h"

#include <algorithm>
#include <utility>

#include "base/files.h"
#include "surface/qr_image.h"

namespace kev {
namespace {

// A page may hold hundreds of codes.
constexpr std::ptrdiff_t kMostAtOnce = 4;

}  // namespace

bool QrImages::HasGoodImage(int row, const std::string& file, const std::string& text) const {
  const auto known = images_.find(row);
  if (known == images_.end()) return false;
  const Image& image = known->second;
  return image.Now == State::Made && IsFor(image, file, text) &&
         StampOf(QrFilesOf(file).Bitmap) == image.Left;
}

bool QrImages::IsReady(int row, const ObjectRecord& record, const std::string& file) {
  if (over_) return false;
  if (HasGoodImage(row, file, record.Content)) return true;
  const auto known = images_.find(row);
  if (known != images_.end()) {
    const Image& image = known->second;
    if (image.Now == State::Running) {
      // What runs may be for another text; the repaint behind it asks again.
      pageIsOld_ = true;
      return false;
    }
    if (image.Now == State::Failed && IsFor(image, file, record.Content)) return false;
  }
  Want(row, file, record.Content);
  BeginWaiting();
  return false;
}

void QrImages::Make(int row, const ObjectRecord& record, const std::string& file) {
  const std::string text = record.Content;
  if (over_ || !WaitFor(row) || HasGoodImage(row, file, text)) return;
  Want(row, file, text);
  Begin(row);
  WaitFor(row);
}

bool QrImages::WaitFor(int row) {
  const auto known = images_.find(row);
  if (known == images_.end()) return true;
  ++known->second.Waiters;
  bool ended = true;
  while (ended && !over_ && known->second.Process) {
    const ProcessId process = *known->second.Process;
    host_.WaitForProcess(process);
    ended = over_ || known->second.Process != process;
  }
  if (over_) return false;
  --known->second.Waiters;
  return ended;
}

void QrImages::Want(int row, const std::string& file, const std::string& text) {
  Image& image = images_[row];
  if (image.File != file) {
    Discard(image);
    image.Begun = false;
  }
  image.File = file;
  image.Text = text;
  image.Now = State::Waiting;
}

// What lies there afterwards is what the tools have left: nothing, where they fail.
void QrImages::Begin(int row) {
  Image& image = images_.at(row);
  const QrImageFiles files = QrFilesOf(image.File);
  image.Step = 0;
  if (FileExists(files.Base)) {
    image.Now = State::Failed;
    return;
  }
  DeleteFileIfThere(files.Png);
  DeleteFileIfThere(files.Bitmap);
  image.Begun = true;
  image.Now = State::Running;
  Continue(row);
}

void QrImages::Continue(int row) {
  Image& image = images_.at(row);
  const QrImageFiles files = QrFilesOf(image.File);
  const auto tools = QrTools(folders_.ProgramFolder, files, document_.Page->ToUtf8(image.Text));
  image.Process.reset();
  while (image.Step < tools.size() && !image.Process) {
    image.Process = host_.StartProgram(tools.at(image.Step++), [self = std::weak_ptr<QrImages*>(self_), row] {
      if (const auto alive = self.lock()) (*alive)->ToolEnded(row);
    });
  }
  if (image.Process) return;
  const std::optional<FileStamp> left = StampOf(files.Bitmap);
  image.Now = left ? State::Made : State::Failed;
  image.Left = left.value_or(FileStamp{});
}

void QrImages::ToolEnded(int row) {
  if (over_) return;
  Continue(row);
  const Image& image = images_.at(row);
  if (image.Process) return;
  if (image.Waiters == 0) pageIsOld_ = true;
  BeginWaiting();
  if (!SomethingRuns() && std::exchange(pageIsOld_, false) && made_) made_();
}

void QrImages::BeginWaiting() {
  auto running = std::count_if(images_.begin(), images_.end(),
                               [](const auto& entry) { return entry.second.Now == State::Running; });
  for (auto& [row, image] : images_) {
    if (running >= kMostAtOnce) return;
    if (image.Now != State::Waiting) continue;
    Begin(row);
    if (image.Now == State::Running) ++running;
  }
}

bool QrImages::SomethingRuns() const {
  return std::any_of(images_.begin(), images_.end(),
                     [](const auto& entry) { return entry.second.Now == State::Running; });
}

void QrImages::Discard(const Image& image) {
  if (!image.Begun) return;
  const QrImageFiles files = QrFilesOf(image.File);
  DeleteFileIfThere(files.Png);
  // Another run may have put its own there since.
  if (image.Process || StampOf(files.Bitmap) == image.Left) DeleteFileIfThere(files.Bitmap);
}

void QrImages::End() {
  over_ = true;
  for (const auto& [row, image] : images_) {
    if (image.Process) host_.StopProgram(*image.Process);
    Discard(image);
  }
  images_.clear();
}

}  // namespace kev
