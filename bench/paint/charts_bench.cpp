// SPDX-License-Identifier: MIT
// A page of thirty charts: painted again while their images are there, and with all of them made anew.
#include <benchmark/benchmark.h>

#include <QPainter>
#include <QTemporaryDir>
#include <QWidget>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <utility>
#include <vector>

#include "app/designer.h"
#include "platform/chart_files.h"
#include "platform/display_list.h"
#include "platform/qt_host.h"
#include "platform/qt_measurer.h"
#include "surface/object_area.h"

namespace kev::bench {
namespace {

constexpr int kRows = 10, kInRow = 3;

std::string Template() {
  std::string text = "KEXVER=4\r\n[HEADER]\r\n{Spacing=100;\\n}\r\n[DATA]\r\n";
  constexpr const char* kTypes[] = {"BarFlat", "BARROUND", "Line", "Area", "BarSquared"};
  for (int row = 0; row < kRows; ++row) {
    for (int n = 0; n < kInRow; ++n) {
      const int chart = row * kInRow + n;
      text +=
          "{Graph_Width=3800;Graph_Height=2400}\r\n{Graph_Type=" + std::string(chart % 4 == 0 ? "3D" : "2D") +
          "}\r\n{Graph_Title=Chart " + std::to_string(chart) + "}\r\n{Graph_series=2}\r\n" +
          "{Graph_Layout_Values=Jan,Feb,Mar,Apr,May,Jun}\r\n{Graph_AxisStyle=3}\r\n{Graph_serie_1_type=" +
          kTypes[chart % 5] + "}\r\n{Graph_serie_1_values=12,18,9,22,31,27}\r\n" +
          "{Graph_serie_2_values=8,11,14,9,17,20}\r\n{Buildgraph=" + std::to_string(100 + n * 3900) +
          ",}\r\n";
    }
    text += "{Spacing=2500;\\n}\r\n";
  }
  return text + "[FOOTER]\r\n{Spacing=100;\\n}\r\n";
}

class ListView final : public DesignerView {
 public:
  explicit ListView(DisplayList& list) : list_(list) {}
  void DocumentReplaced() override {}
  SurfaceOps& Canvas() override { return list_; }
  void PageShown() override {}
  void ShowZoom(std::string_view) override {}
  void FindingsChanged() override {}

 private:
  DisplayList& list_;
};

class ChartPage {
 public:
  ChartPage() {
    for (const char* folder : {"temp/Kev/Cache", "temp/Kev/Temp", "data/Kev/temp"})
      std::filesystem::create_directories(Path(folder));
    std::ofstream(Path("charts.kev"), std::ios::binary) << Template();
    images_.SetResolver(
        [this](std::string_view file) { return designer_.PictureFileOnDisk(file).value_or(std::string()); });
    if (!designer_.Load()) std::abort();
    designer_.AttachView(&view_);
    designer_.Charts().SetPainter(&files_);
    designer_.SplashLoad();
    designer_.AfterSplash();
    page_ = QImage((list_.Canvas().size() / kUnitsPerPixel).toSize(), QImage::Format_RGB32);
    Repaint();
  }

  void Repaint() {
    designer_.Surface().Redraw();
    page_.fill(Qt::white);
    QPainter painter(&page_);
    list_.Paint(painter, list_.Canvas());
  }
  // The pictures of the charts, as they stand on the page.
  std::vector<std::pair<QPoint, QImage>> Pictures() const {
    std::vector<std::pair<QPoint, QImage>> pictures;
    const Document& document = designer_.OpenDocument();
    for (int row = 1; row <= document.Objects.LastScanned(); ++row) {
      if (document.Objects[row].Kind != ObjectKind::Chart) continue;
      const CanvasArea area = AreaOf(document.Objects[row], document, 1);
      const QRectF place(area.Left - list_.Canvas().left(), area.Top, area.Width(), area.Height());
      const QRect pixels = QRectF(place.topLeft() / kUnitsPerPixel, place.size() / kUnitsPerPixel).toRect();
      pictures.emplace_back(pixels.topLeft(), page_.copy(pixels));
    }
    return pictures;
  }
  QImage BlankPage() const { return {page_.size(), page_.format()}; }
  void FlagAll() { designer_.Charts().FlagAll(); }

 private:
  std::string Path(const std::string& below) const { return folder_.path().toStdString() + "/" + below; }
  StartInput Input() const {
    return {[this](std::string_view name) -> std::optional<std::string> {
              if (name == "TEMP") return Path("temp");
              if (name == "appdata") return Path("data");
              return std::nullopt;
            },
            ExecutableFolder(),
            {Path("charts.kev")}};
  }

  QTemporaryDir folder_;
  QtHost host_;
  FontCache fonts_;
  ImageCache images_{{}};
  DisplayList list_{fonts_, images_};
  ListView view_{list_};
  QWidget window_;
  ChartFiles files_{fonts_, images_, window_};
  const QtMeasurer measurer_{fonts_};
  Designer designer_{host_, measurer_, Input()};
  QImage page_;
};

void RepaintCharts(benchmark::State& state) {
  ChartPage page;
  for ([[maybe_unused]] auto run : state)
    page.Repaint();
}

void RepaintChartsFloor(benchmark::State& state) {
  const ChartPage page;
  const auto pictures = page.Pictures();
  if (pictures.size() != kRows * kInRow) return state.SkipWithError("charts are missing");
  QImage image = page.BlankPage();
  for ([[maybe_unused]] auto run : state) {
    image.fill(Qt::white);
    QPainter painter(&image);
    for (const auto& [place, picture] : pictures)
      painter.drawImage(place, picture);
  }
}

void MakeCharts(benchmark::State& state) {
  ChartPage page;
  for ([[maybe_unused]] auto run : state) {
    page.FlagAll();
    page.Repaint();
  }
}

BENCHMARK(RepaintCharts)->Unit(benchmark::kMicrosecond)->MeasureProcessCPUTime();
BENCHMARK(RepaintChartsFloor)->Unit(benchmark::kMicrosecond)->MeasureProcessCPUTime();
BENCHMARK(MakeCharts)->Unit(benchmark::kMicrosecond)->MeasureProcessCPUTime();

}  // namespace
}  // namespace kev::bench
