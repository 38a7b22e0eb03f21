// SPDX-License-Identifier: MIT
#include "template/writer.h"

#include <algorithm>
#include <array>
#include <map>
#include <tuple>
#include <utility>

#include "base/files.h"
#include "base/numbers.h"
#include "base/text.h"
#include "document/band_layout.h"
#include "template/object_writer.h"
#include "template/regroup.h"
#include "template/snapshot_text.h"

namespace kev {
namespace {

// What stands behind the first blank of the title: the head line as the file had it.
std::string_view HeadLine(const ObjectRecord& bar) {
  const std::size_t blank = bar.SectionTitle.Text().find(kBlank);
  return blank == std::string::npos ? std::string_view{}
                                    : Trim(std::string_view(bar.SectionTitle).substr(blank));
}

bool IsConfiguration(const ObjectRecord& bar, const CodePage& page) {
  return page.EqualsIgnoringCase(Trim(NthToken(bar.SectionTitle, 1, kBlank)), kConfigurationSection);
}

class TemplateWriter {
 public:
  // `layout` is where the sorted rows come to stand, wherever they stand in the document.
  TemplateWriter(const Document& document, const SortedRows& sorted, const BandLayout& layout,
                 const WriteOptions& options, WriteReport& report)
      : document_(document),
        page_(*document.Page),
        sorted_(sorted),
        layout_(layout),
        lines_(document, options, report) {}

  std::string StageOne();

 private:
  struct Bar {
    int row;
    int section;        // 0 header, 1 footer, 2 data
    bool isBase;        // the section's own bar, which its line in the file makes
    std::size_t place;  // in the sorted list
    std::vector<int> rows;
  };

  void Head();
  void Columns();
  void Subsections();
  std::vector<Bar> CollectBars() const;
  void DistributeRows(std::vector<Bar>& bars) const;

  const Document& document_;
  const CodePage& page_;
  const SortedRows& sorted_;
  const BandLayout& layout_;
  ObjectWriter lines_;
};

std::string TemplateWriter::StageOne() {
  Head();
  lines_.Line("[HEADER]");
  Subsections();
  return lines_.Take();
}

void TemplateWriter::Head() {
  std::size_t count = 0;
  for (int row = 1; row <= document_.Objects.LastScanned(); ++row) {
    const ObjectRecord& bar = document_.Objects[row];
    if (bar.Kind != ObjectKind::Subsection || !IsConfiguration(bar, page_)) continue;
    lines_.Line(HeadLine(bar));
    ++count;
    break;
  }
  std::size_t lines = count;
  for (const Setting id : SettingWriteOrder())
    lines += SettingIsPrinted(document_.Settings, id, page_) ? 1 : 0;
  for (int slot = 1; slot <= ColumnTable::kLastSlot; ++slot)
    lines += document_.Columns[slot].Name.empty() ? 0 : 1;
  // Keys are looked for in the first 100 lines only; columns are found wherever they stand in the head.
  const bool columnsLast = lines > KeyFile::kLinesLookedAt;
  for (const Setting id : SettingWriteOrder()) {
    if (SettingIsPrinted(document_.Settings, id, page_)) {
      lines_.Line(std::string(RowOf(id).key) + "=" + PrintedValue(document_.Settings, id));
    }
    if (id == Setting::Spacing && !columnsLast) Columns();
  }
  if (columnsLast) Columns();
}

void TemplateWriter::Columns() {
  for (int slot = 1; slot <= ColumnTable::kLastSlot; ++slot) {
    const Column& column = document_.Columns[slot];
    if (!column.Name.empty()) lines_.Line(column.Name + "=" + FormatNumber(column.Position));
  }
}

// The subsections in the order in which regrouping lays them, so that no attribute is taken for known that
// the reader meets later.
std::vector<TemplateWriter::Bar> TemplateWriter::CollectBars() const {
  static const std::map<std::string_view, int> kSectionOrder = {
      {"[HEADER]", 0}, {"[FOOTER]", 1}, {"[DATA]", 2}};
  std::vector<Bar> bars;
  std::array<bool, 3> hasBase{};
  for (std::size_t place = 0; place < sorted_.Rows.size(); ++place) {
    const int row = sorted_.Rows[place];
    const ObjectRecord& bar = document_.Objects[row];
    if (bar.Kind != ObjectKind::Subsection || IsConfiguration(bar, page_)) continue;
    const auto section = kSectionOrder.find(NthToken(bar.SectionTitle, 1, kBlank));
    if (section == kSectionOrder.end()) continue;
    const bool isBase = HeadLine(bar).empty() && !hasBase[static_cast<std::size_t>(section->second)];
    if (isBase) hasBase[static_cast<std::size_t>(section->second)] = true;
    bars.push_back({row, section->second, isBase, place, {}});
  }
  std::stable_sort(bars.begin(), bars.end(), [](const Bar& a, const Bar& b) {
    return std::tuple(a.section, !a.isBase, a.place) < std::tuple(b.section, !b.isBase, b.place);
  });
  return bars;
}

// Rows are written with the bar that owns them. An orphan is written with the bar above, so that it is not
// lost.
void TemplateWriter::DistributeRows(std::vector<Bar>& bars) const {
  if (bars.empty()) return;
  const std::vector<int> owners = OwnersIn(document_, layout_);
  std::vector<Bar*> barAt(owners.size());
  for (Bar& bar : bars)
    barAt[static_cast<std::size_t>(bar.row)] = &bar;
  Bar* above = &bars.front();
  for (const int row : sorted_.Rows) {
    if (Bar* bar = barAt[static_cast<std::size_t>(row)]) above = bar;
    if (IsBand(document_.Objects[row].Kind)) continue;
    Bar* owner = barAt[static_cast<std::size_t>(owners[static_cast<std::size_t>(row)])];
    (owner == nullptr ? above : owner)->rows.push_back(row);
  }
  for (Bar& bar : bars) {
    std::stable_sort(bar.rows.begin(), bar.rows.end(),
                     [this](int a, int b) { return document_.Objects[a].Y < document_.Objects[b].Y; });
  }
}

void TemplateWriter::Subsections() {
  std::vector<Bar> bars = CollectBars();
  DistributeRows(bars);
  for (const Bar& bar : bars) {
    const ObjectRecord& record = document_.Objects[bar.row];
    const std::string_view section = NthToken(record.SectionTitle, 1, kBlank);
    const std::string_view head = HeadLine(record);
    // A section that stands twice: without a head line the reader would take the rows of the second for those
    // of the bar above.
    lines_.Subsection(record, layout_.SectionCursorY[static_cast<std::size_t>(bar.row)], section,
                      head.empty() && !bar.isBase ? section : head);
    for (const int row : bar.rows)
      lines_.Object(document_.Objects[row]);
    if (record.EndRow != 0) lines_.EndOfSubsection(document_.Objects[record.EndRow]);
  }
}

std::string LaidOutStageOne(Document& document, const WriteOptions& options, WriteReport& report) {
  const SortedRows sorted = SetSortKeys(document);
  const BandLayout layout = LayOutBands(document, sorted);
  StoreLayout(document, sorted, layout);
  return TemplateWriter(document, sorted, layout, options, report).StageOne();
}

}  // namespace

std::string TemplateText(Document& document, const WriteOptions& options, WriteReport& report) {
  return RegroupBySection(LaidOutStageOne(document, options, report), *document.Page);
}

std::string SnapshotText(const Document& document, const WriteOptions& options, WriteReport& report) {
  const SortedRows sorted = SortRows(document);
  const BandLayout layout = LayOutBands(document, sorted);
  return RegroupBySection(TemplateWriter(document, sorted, layout, options, report).StageOne(),
                          *document.Page);
}

WriteReport WriteTemplate(const std::string& path, Document& document, const WriteOptions& options) {
  WriteReport report;
  const std::string stageOne = LaidOutStageOne(document, options, report);
  const std::string temporary = path + ".tmp";
  report.Failure = WritePlainFile(temporary, stageOne);
  if (!report.Failure) report.Failure = WriteWholeFile(path, RegroupBySection(stageOne, *document.Page));
  if (!report.Failure) DeleteFileIfThere(temporary);
  return report;
}

}  // namespace kev
