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
#include "document/sections.h"
#include "template/object_writer.h"
#include "template/regroup.h"

namespace kev {
namespace {

// What stands behind the first blank of the title: the head line as the file had it.
std::string_view HeadLine(const ObjectRecord& bar) {
  const std::size_t blank = bar.SectionTitle.find(kBlank);
  return blank == std::string::npos ? std::string_view{}
                                    : Trim(std::string_view(bar.SectionTitle).substr(blank));
}

bool IsConfiguration(const ObjectRecord& bar, const CodePage& page) {
  return page.EqualsIgnoringCase(Trim(NthToken(bar.SectionTitle, 1, kBlank)), kConfigurationSection);
}

class TemplateWriter {
 public:
  TemplateWriter(Document& document, const WriteOptions& options, WriteReport& report)
      : document_(document),
        page_(*document.Page),
        sorted_(SetSortKeys(document)),
        lines_(document, options, report) {
    NormaliseSubsections(document, sorted_);
  }

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

  Document& document_;
  const CodePage& page_;
  SortedRows sorted_;
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
  const OwnerIndex index(document_);
  std::map<int, std::size_t> barAt;
  for (std::size_t n = 0; n < bars.size(); ++n)
    barAt.emplace(bars[n].row, n);
  std::size_t above = 0;
  for (const int row : sorted_.Rows) {
    if (const auto bar = barAt.find(row); bar != barAt.end()) above = bar->second;
    if (IsBand(document_.Objects[row].Kind)) continue;
    const auto owner = barAt.find(index.OwnerOf(row));
    bars[owner == barAt.end() ? above : owner->second].rows.push_back(row);
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
    lines_.Subsection(record, section, head.empty() && !bar.isBase ? section : head);
    for (const int row : bar.rows)
      lines_.Object(document_.Objects[row]);
    if (record.EndRow != 0) lines_.EndOfSubsection(document_.Objects[record.EndRow]);
  }
}

}  // namespace

std::string TemplateText(Document& document, const WriteOptions& options, WriteReport& report) {
  return RegroupBySection(TemplateWriter(document, options, report).StageOne(), *document.Page);
}

WriteReport WriteTemplate(const std::string& path, Document& document, const WriteOptions& options) {
  WriteReport report;
  const std::string stageOne = TemplateWriter(document, options, report).StageOne();
  const std::string temporary = path + ".tmp";
  report.Failure = WritePlainFile(temporary, stageOne);
  if (!report.Failure) report.Failure = WriteWholeFile(path, RegroupBySection(stageOne, *document.Page));
  if (!report.Failure) DeleteFileIfThere(temporary);
  return report;
}

}  // namespace kev
