// SPDX-License-Identifier: MIT
// Bar codes of any text as pictures, for reading them back. Each line of standard input is one picture:
// file (.ppm), kind, width, "h" or "v", zoom in percent, device ratio and text, with tabs between. The
// symbol stands at 1000, 1000 of a small page, 600 high.
#include <QGuiApplication>
#include <iostream>
#include <sstream>
#include <string>
#include <vector>

#include "base/numbers.h"
#include "platform/render.h"
#include "support/sample_page.h"

namespace {

using namespace kev;

std::vector<std::string> Fields(const std::string& line) {
  std::istringstream stream(line);
  std::vector<std::string> fields;
  for (std::string field; std::getline(stream, field, '\t');)
    fields.push_back(field);
  return fields;
}

Document PageWith(const std::vector<std::string>& fields) {
  Document document;
  document.Settings[Setting::PAPERSIZE] = "(custom)";
  document.Settings[Setting::PAGEWIDTH] = "20000";
  document.Settings[Setting::PAGELENGHT] = "20000";
  test::AddSubsection(document, "[DATA]", 0, fields[3] == "v" ? 12000 : 2000);
  const int row = test::AddRow(document, ObjectKind::Barcode, "1000", 1000, 1000, 600);
  ObjectRecord& record = document.Objects[row];
  record.BarcodeKind = fields[1];
  record.BarWidth = static_cast<std::int16_t>(Int32Of(fields[2]));
  record.VerticalBar = ToFlag(fields[3] == "v");
  record.BarcodeSample = document.Page->FromUtf8(fields[6]).value_or("");
  return document;
}

bool Draw(const std::vector<std::string>& fields) {
  if (fields.size() != 7) return false;
  Document document = PageWith(fields);
  RenderOptions options;
  options.ZoomFactor = NumericPrefix(fields[4]) / 100;
  options.scale = NumericPrefix(fields[5]);
  const auto image = RenderToImage(document, options);
  return image && image->save(QString::fromStdString(fields[0]), "PPM");
}

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication application(argc, argv);
  for (std::string line; std::getline(std::cin, line);) {
    if (Draw(Fields(line))) continue;
    std::cerr << "no picture of " << line << '\n';
    return 1;
  }
}
