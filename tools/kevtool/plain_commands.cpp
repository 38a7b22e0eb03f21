// SPDX-License-Identifier: MIT
#include <iostream>

#include "base/files.h"
#include "base/numbers.h"
#include "commands.h"
#include "document/position.h"
#include "document/sections.h"
#include "surface/visuals.h"
#include "template/packed.h"
#include "template/writer.h"

namespace kev::tool {
namespace {

WriteReport WritePacked(const std::string& path, Document& document, const WriteOptions& options) {
  WriteReport report;
  const Result<std::string> packed = PackedBytes(TemplateText(document, options, report), FileNameOf(path));
  report.Failure = packed ? WriteWholeFile(path, *packed) : FileFailure{path, packed.Error().reason};
  return report;
}

}  // namespace

int Rewrite(const std::string& in, const std::string& out, bool comments) {
  std::optional<ReadOutcome> outcome = Open(in).Outcome;
  if (!outcome) return kRefused;
  // As on opening: the page is painted once between the two, and painting stores what it found out.
  DeriveGeometry(outcome->Read);
  BarcodeState bars;
  ApplyRedrawWriteBack(outcome->Read, BuiltInMeasurer(), DisplayFilter::All, {}, &bars);
  TellStopped(in, outcome->Read, bars);
  DeriveGeometry(outcome->Read);
  const WriteReport report = AsksForPacking(outcome->Read.Settings)
                                 ? WritePacked(out, outcome->Read, {comments})
                                 : WriteTemplate(out, outcome->Read, {comments});
  if (report.Failure) {
    std::cerr << report.Failure->path << ": " << report.Failure->reason << '\n';
    return kRefused;
  }
  for (const std::string& kind : report.UnnamedSymbologies) {
    std::cerr << out << ": bar code kind " << kind << " has no word in a template and will not come back\n";
  }
  return kGood;
}

void TellStopped(const std::string& file, const Document& document, const BarcodeState& bars) {
  for (const int row : bars.Stopped) {
    std::cerr << file << ": " << FindingText(FindingKind::PaintingStops) << ": "
              << document.Page->ToUtf8(document.Objects[row].Content) << '\n';
  }
}

int Eval(const std::string& file, const std::string& expression) {
  const std::optional<ReadOutcome> outcome = Open(file).Outcome;
  if (!outcome) return kRefused;
  const Document& document = outcome->Read;
  std::string missing;
  const std::optional<std::string> text = document.Page->FromUtf8(expression, &missing);
  if (!text) {
    std::cerr << "kevtool: a template cannot hold the character " << missing << '\n';
    return kWrongUsage;
  }
  const std::optional<double> value = EvaluatePosition(*text, document.Columns, *document.Page);
  std::cout << (value ? FormatNumber(*value) : std::string()) << '\n';
  return kGood;
}

}  // namespace kev::tool
