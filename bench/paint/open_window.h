// SPDX-License-Identifier: MIT
// The whole window of the program with a template open, as the benchmarks drive it.
#pragma once

#include <QApplication>
#include <QTemporaryDir>
#include <filesystem>
#include <fstream>
#include <string>

#include "platform/forms/kav_edit01.h"
#include "platform/forms/kavsplash.h"
#include "platform/qt_measurer.h"
#include "support/sample_template.h"

namespace kev::bench {

class Window {
 public:
  explicit Window(int rows) : Window(SampleTemplate(rows)) {}
  explicit Window(const std::string& bytes)
      : images_({}),
        measurer_(fonts_),
        designer_(host_, measurer_,
                  {Variables(), ExecutableFolder(), {Template(bytes)}, StartInput::LocalTime}),
        loaded_(designer_.Load()),
        window_(designer_, host_, fonts_, images_) {
    window_.show();
    while (designer_.DocumentPath().empty()) {
      if (auto* splash = window_.findChild<kavsplash*>()) splash->close();
      QCoreApplication::processEvents();
    }
    Settle();
  }

  Designer& TheDesigner() { return designer_; }
  int LastLabel() {
    const ObjectTable& objects = designer_.OpenDocument().Objects;
    int last = 0;
    for (int row = 1; row <= objects.LastScanned(); ++row)
      if (objects[row].Kind == ObjectKind::Label) last = row;
    return last;
  }
  KavEdit01& TheWidget() { return window_; }
  PageCanvas& Page() { return *window_.findChild<PageCanvas*>(); }
  // What was put off is done, and everything that changed is painted.
  static void Settle() {
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
  }
  // Nothing is left that would be done sooner or later without the user.
  void Rest() {
    Settle();
    while (!Page().IsPaintedAhead())
      QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
  }

 private:
  Environment Variables() {
    for (const char* folder : {"temp/Kev/Cache", "temp/Kev/Temp", "data/Kev/temp"})
      std::filesystem::create_directories(home_ + folder);
    return [home = home_](std::string_view name) -> std::optional<std::string> {
      if (name == "TEMP") return home + "temp";
      if (name == "appdata") return home + "data";
      return std::nullopt;
    };
  }
  std::string Template(const std::string& bytes) const {
    const std::string path = home_ + "sample.kev";
    std::ofstream(path, std::ios::binary) << bytes;
    return path;
  }

  QTemporaryDir folder_;
  std::string home_ = folder_.path().toStdString() + "/";
  QtHost host_;
  FontCache fonts_;
  ImageCache images_;
  QtMeasurer measurer_;
  Designer designer_;
  bool loaded_;
  KavEdit01 window_;
};

}  // namespace kev::bench
