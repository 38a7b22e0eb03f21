// SPDX-License-Identifier: MIT
// What each kind of new object holds.
#include "base/numbers.h"
#include "base/text.h"
#include "chart/definition.h"
#include "surface/insertion.h"

namespace kev {
namespace {

constexpr std::int16_t kNormalBarWidth = 10;
constexpr std::string_view kFirstSymbology = "1";
constexpr std::int16_t kCommandGreen = 128;

void TakeStyle(ObjectRecord& record, const TextStyle& style) {
  record.FontName = style.FontName;
  record.FontSize = style.FontSize;
  record.Bold = ToFlag(style.Bold);
  record.Italic = ToFlag(style.Italic);
  record.Underline = ToFlag(style.Underline);
  record.CharSet = style.CharSet;
  record.CaseMode = "N";
  record.ValueType = "General";
  record.ColorR = Int16Of(NthToken(style.Color, 1, ','));
  record.ColorG = Int16Of(NthToken(style.Color, 2, ','));
  record.ColorB = Int16Of(NthToken(style.Color, 3, ','));
}

void Label(ObjectRecord& record, const InsertionWork& work) {
  TakeStyle(record, work.last.Label);
  MeasureText(record, work.page.measurer);
}

void TextBox(ObjectRecord& record, const InsertionWork& work) {
  TakeStyle(record, work.last.TextBox);
  record.BackColorR = record.BackColorG = record.BackColorB = -1;
}

void Command(ObjectRecord& record, const InsertionWork& work) {
  record.FontName = "Arial";
  record.FontSize = 8;
  record.Bold = kTrue;
  record.ColorG = kCommandGreen;
  MeasureText(record, work.page.measurer);
}

void Barcode(ObjectRecord& record, const InsertionWork& work) {
  record.Height = work.page.document.Settings.SpacingTwips();
  record.BarcodeKind = kFirstSymbology;
  record.BarcodeSample = record.Content;
  record.BarWidth = kNormalBarWidth;
}

void SetChart(ChartDefinition& chart, const std::string& key, std::string_view value) {
  chart.ReadChartKey(CodePage::Default().Upper(key), value);
}

void Chart(ObjectRecord& record) {
  ChartDefinition chart;
  for (int n = 1; n <= kChartSeriesCount; ++n) {
    const std::string number = std::to_string(n);
    SetChart(chart, "Graph_serie_" + number + "_type", "BARROUND");
    SetChart(chart, "Graph_serie_" + number + "_name", "Serie " + number);
  }
  record.ChartValues = std::move(chart.Values);
}

void FillByKind(ObjectRecord& record, const InsertionWork& work) {
  switch (record.Kind) {
    case ObjectKind::Label:
      return Label(record, work);
    case ObjectKind::TextBox:
      return TextBox(record, work);
    case ObjectKind::Command:
      return Command(record, work);
    case ObjectKind::Barcode:
      return Barcode(record, work);
    case ObjectKind::Chart:
      return Chart(record);
    case ObjectKind::Circle:
      record.Width = record.Height = work.page.document.Settings.SpacingTwips();
      return;
    case ObjectKind::Picture:
      record.PictureFile = kMissingPicture;
      return;
    case ObjectKind::Qr:
      record.BarcodeKind = std::to_string(kQrSymbology);
      return;
    case ObjectKind::Box:
    case ObjectKind::Line:
    case ObjectKind::AnyLine:
    case ObjectKind::None:
    case ObjectKind::Section:
    case ObjectKind::Subsection:
    case ObjectKind::EndOfSubsection:
      return;
  }
}

}  // namespace

void FillInserted(ObjectRecord& record, const InsertionRow& row, const InsertionWork& work) {
  record = ObjectRecord{};
  record.Kind = row.kind;
  record.Handles = row.handles;
  record.MayMoveVertically = record.MayMoveHorizontally = kTrue;
  record.MayResize = row.mayResize;
  record.Width = row.width;
  record.Height = row.height;
  record.LineWidth = row.lineWidth;
  record.Content = row.content;
  record.ModifiableByEndUser = 1;
  record.PrintFlag = kTrue;
  record.AlignToGrid = 1;
  record.Align = "L";
  FillByKind(record, work);
}

}  // namespace kev
