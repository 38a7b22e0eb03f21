// SPDX-License-Identifier: MIT
// The image files of the charts on the page. A file of this run is painted again as it is, until what it
// shows is another chart, or the same in another size, zoom or resolution.
#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

#include "chart/graph.h"
#include "surface/visuals.h"

namespace kev {

class Designer;

// What the window does for it.
class ChartPainter {
 public:
  virtual ~ChartPainter() = default;
  // Device pixels for each logical pixel where the page is shown.
  virtual double DeviceRatio() const = 0;
  // Draws into a bitmap file of the format BMP, `scale` device pixels for each logical pixel at 100 %; native
  // path. What is painted from that file afterwards is the new one. False when there is no such file.
  virtual bool SaveChart(const ChartPicture& picture, double scale, const std::string& path) = 0;
  // The pointer by its number: kWaitPointer or kNormalPointer.
  virtual void ShowPointer(int number) = 0;
};

inline constexpr int kNormalPointer = 0;
inline constexpr int kWaitPointer = 11;

class ChartImages final : public ChartPictures {
 public:
  explicit ChartImages(Designer& designer) : designer_(designer) {}

  // While there is none, charts are painted as a frame. It outlives its use.
  void SetPainter(ChartPainter* painter) { painter_ = painter; }
  bool HasPainter() const { return painter_ != nullptr; }

  // Makes the image where there is none that fits. False when it can't be had.
  bool IsReady(int row, const ObjectRecord& record, const std::string& file, double zoom) override;

  // Makes the image of a row anew, whatever is there, and names it in the record. The values of the record
  // are left alone. False for a row that is no chart, and when the image can't be had.
  bool RebuildChartImage(int row);
  // The same for the current object, under the wait pointer.
  bool SaveChartImage();

  // The next paint makes all images anew.
  void FlagAll() { made_.clear(); }
  // Those of this run, at its end.
  void DeleteFiles();

 private:
  // What an image was made from.
  struct Made {
    std::vector<std::string> Values;
    double Width = 0, Height = 0;  // logical pixels at 100 %
    double Scale = 1;
    std::string BackGround;  // the picture's file and its time
    bool operator==(const Made&) const = default;
  };

  Made Wanted(const ObjectRecord& record, double zoom) const;
  std::string StampOf(const ObjectRecord& record) const;
  std::string PathOf(const std::string& file) const;
  bool Save(int row, Made wanted, const std::string& path);

  Designer& designer_;
  ChartPainter* painter_ = nullptr;
  std::map<int, Made> made_;
  std::set<std::string> files_;
};

}  // namespace kev
