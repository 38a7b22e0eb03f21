// SPDX-License-Identifier: MIT
// Any texts as a chart: lines "key=value", of which the first may be "width,height". What is laid out lies in
// the picture, and a dialog that is opened and accepted changes nothing.
#include <cmath>
#include <variant>

#include "base/code_page.h"
#include "base/numbers.h"
#include "base/text.h"
#include "chart/definition.h"
#include "chart/graph.h"
#include "chart/wizard.h"
#include "fuzz_support.h"

namespace {

using namespace kev;
using fuzz::Require;

constexpr double kSlack = 1e-6;

struct Inside {
  const ChartPicture& picture;

  void At(ChartPoint point) const {
    Require(point.X >= -kSlack && point.X <= picture.Width + kSlack);
    Require(point.Y >= -kSlack && point.Y <= picture.Height + kSlack);
  }
  void Area(const ChartRect& area) const {
    At({area.Left, area.Top});
    At({area.Right, area.Bottom});
  }
  void operator()(const ChartPolygon& shape) const {
    for (const ChartPoint& point : shape.Points)
      At(point);
  }
  void operator()(const ChartPolyline& shape) const {
    for (const ChartPoint& point : shape.Points)
      At(point);
  }
  void operator()(const ChartGradient& shape) const { Area(shape.Area); }
  void operator()(const ChartImage& shape) const { Area(shape.Area); }
  void operator()(const ChartText& shape) const {
    for (const ChartPoint& corner : CornersOf(shape))
      At(corner);
  }
};

ObjectRecord RecordOf(std::string_view rest) {
  ChartDefinition chart;
  ObjectRecord record;
  record.Width = 6000;
  record.Height = 4000;
  for (bool first = true; !rest.empty(); first = false) {
    const std::string_view line = TakeLine(rest);
    const std::size_t sign = line.find('=');
    if (first && sign == std::string_view::npos) {
      record.Width = Int32Of(NthToken(line, 1, ','));
      record.Height = Int32Of(NthToken(line, 2, ','));
    } else if (sign != std::string_view::npos) {
      chart.ReadChartKey(CodePage::Default().Upper(line.substr(0, sign)), line.substr(sign + 1));
    }
  }
  record.Kind = ObjectKind::Chart;
  record.ChartValues = chart.Values;
  return record;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const ObjectRecord record = RecordOf(fuzz::TextOf(data, size));
  const BuiltInMeasurer measurer;
  const ChartPicture picture = LayOutChart(LookOf(record), measurer);
  Require(std::isfinite(picture.Width) && std::isfinite(picture.Height));
  for (const ChartShape& shape : picture.Shapes)
    std::visit(Inside{picture}, shape);
  if (!fuzz::IsOneOfEight(fuzz::TextOf(data, size))) return 0;
  Require(StoredValues(OpenedChartWizard(record, 1)) == record.ChartValues);
  Require(!ChartBlocks(record).empty());
  return 0;
}
