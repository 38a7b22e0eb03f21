// SPDX-License-Identifier: MIT
#include "app/chart_images.h"

#include <chrono>
#include <filesystem>
#include <utility>

#include "app/designer.h"
#include "base/files.h"
#include "chart/slots.h"

namespace kev {
namespace {

// Whatever happens, the user gets the normal pointer back.
class WaitPointer {
 public:
  explicit WaitPointer(ChartPainter& painter) : painter_(painter) { painter_.ShowPointer(kWaitPointer); }
  ~WaitPointer() { painter_.ShowPointer(kNormalPointer); }
  WaitPointer(const WaitPointer&) = delete;
  WaitPointer& operator=(const WaitPointer&) = delete;

 private:
  ChartPainter& painter_;
};

}  // namespace

std::string ChartImages::StampOf(const ObjectRecord& record) const {
  if (record.ChartValues.size() <= slot::kBackGroundPicture) return {};
  const std::string& picture = record.ChartValues[slot::kBackGroundPicture];
  if (picture.empty()) return {};
  const std::optional<std::string> file = designer_.PictureFileOnDisk(picture);
  if (!file) return {};
  std::error_code missing;
  const auto changed = std::filesystem::last_write_time(*file, missing).time_since_epoch();
  return *file + '\n' + std::to_string(missing ? 0 : changed.count());
}

ChartImages::Made ChartImages::Wanted(const ObjectRecord& record, double zoom) const {
  ChartLook look = LookOf(record);
  return {std::move(look.Values), look.Width, look.Height, zoom * painter_->DeviceRatio(), StampOf(record)};
}

// ChartImageName writes the folder as it is and its own separator behind it.
std::string ChartImages::PathOf(const std::string& file) const {
  const std::string& folder = designer_.Folders().TempFolder;
  return JoinPath(folder, std::string_view(file).substr(folder.size()));
}

bool ChartImages::Save(int row, Made wanted, const std::string& path) {
  made_.erase(row);
  const ChartPicture picture =
      LayOutChart({wanted.Values, wanted.Width, wanted.Height}, designer_.Measurer());
  files_.insert(path);
  if (!painter_->SaveChart(picture, wanted.Scale, path)) return false;
  made_[row] = std::move(wanted);
  return true;
}

bool ChartImages::IsReady(int row, const ObjectRecord& record, const std::string& file, double zoom) {
  if (painter_ == nullptr) return false;
  Made wanted = Wanted(record, zoom);
  const std::string path = PathOf(file);
  const auto known = made_.find(row);
  if (known != made_.end() && known->second == wanted && FileExists(path)) return true;
  return Save(row, std::move(wanted), path);
}

bool ChartImages::RebuildChartImage(int row) {
  if (painter_ == nullptr) return false;
  ObjectRecord& record = designer_.OpenDocument().Objects[row];
  if (record.Kind != ObjectKind::Chart) return false;
  record.PictureFile = ChartImageName(designer_.Images(), row);
  return Save(row, Wanted(record, designer_.ZoomFactor()), PathOf(record.PictureFile));
}

bool ChartImages::SaveChartImage() {
  if (painter_ == nullptr) return false;
  const WaitPointer waiting(*painter_);
  return RebuildChartImage(designer_.OpenDocument().Objects.CurrentObject);
}

void ChartImages::DeleteFiles() {
  for (const std::string& path : files_)
    DeleteFileIfThere(path);
  files_.clear();
  made_.clear();
}

}  // namespace kev
