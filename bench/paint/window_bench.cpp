// SPDX-License-Identifier: MIT
// The whole window with a document open: what the user waits for between an edit and the page that shows it,
// the recovery file included.
#include <QApplication>
#include <QTemporaryDir>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "platform/forms/kav_edit01.h"
#include "platform/forms/kavsplash.h"
#include "platform/qt_measurer.h"
#include "support/sample_template.h"

namespace kev::bench {
namespace {

class Window {
 public:
  explicit Window(int rows)
      : images_({}),
        measurer_(fonts_),
        designer_(host_, measurer_,
                  {Variables(), ExecutableFolder(), {Template(rows)}, StartInput::LocalTime}),
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
  // What was put off is done, and everything that changed is painted.
  static void Settle() {
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
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
  std::string Template(int rows) const {
    const std::string path = home_ + "sample.kev";
    std::ofstream(path, std::ios::binary) << SampleTemplate(rows);
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

// An object is clicked on and its sheet shows.
void ShowSheetInWindow(benchmark::State& state) {
  Window window(static_cast<int>(state.range(0)));
  const int label = window.LastLabel();
  for ([[maybe_unused]] auto run : state) {
    window.TheDesigner().Surface().GoToObject(label);
    Window::Settle();
  }
}

void EditInWindow(benchmark::State& state) {
  Window window(static_cast<int>(state.range(0)));
  Designer& designer = window.TheDesigner();
  designer.Surface().GoToObject(window.LastLabel());
  Window::Settle();
  bool other = false;
  for ([[maybe_unused]] auto run : state) {
    designer.Sheets().Edited(1, (other = !other) ? "Subtotal" : "Total");
    Window::Settle();
  }
}

BENCHMARK(ShowSheetInWindow)->Apply(AtAllSizes)->Unit(benchmark::kMicrosecond)->UseRealTime();
BENCHMARK(EditInWindow)->Apply(AtAllSizes)->Unit(benchmark::kMicrosecond)->UseRealTime();

}  // namespace
}  // namespace kev::bench
