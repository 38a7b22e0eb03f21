// SPDX-License-Identifier: MIT
#include "app/template_findings.h"

#include <algorithm>
#include <tuple>

#include "base/numbers.h"
#include "base/text.h"
#include "document/kind_defaults.h"
#include "document/position.h"
#include "document/sections.h"
#include "surface/page_background.h"
#include "surface/visuals.h"

namespace kev {
namespace {

SourcePlace PlaceOf(int row, std::span<const SourcePlace> places) {
  const auto index = static_cast<std::size_t>(row);
  return row > 0 && index < places.size() ? places[index] : SourcePlace{};
}

Finding At(const SourcePlace& place, FindingKind kind, std::string text, int row) {
  return {place.Line, place.Column, kind, std::move(text), row};
}

class PageCheck {
 public:
  PageCheck(const Document& document, std::span<const SourcePlace> places)
      : document_(document),
        places_(places),
        owners_(document),
        size_(PageSizeOf(document.Settings)),
        left_(-LeftMarginOf(document.Settings)) {}

  std::vector<Finding> Run() {
    for (int row = 1; row <= document_.Objects.LastScanned(); ++row) {
      const ObjectRecord& record = document_.Objects[row];
      if (record.Kind == ObjectKind::None || IsBand(record.Kind)) continue;
      CheckAcross(record, row);
      CheckDown(record, row);
      CheckBody(record, row);
    }
    return std::move(findings_);
  }

 private:
  void Note(FindingKind kind, std::string text, int row) {
    findings_.push_back(At(PlaceOf(row, places_), kind, std::move(text), row));
  }
  void NotePosition(const ObjectRecord& record, int row, std::string_view name, std::string_view value) {
    Note(FindingKind::PastPage,
         std::string(KindText(record.Kind)).append(" ").append(name).append(": ").append(value), row);
  }

  void CheckAcross(const ObjectRecord& record, int row) {
    const auto check = [&](std::string_view name, const std::string& position) {
      const double x = PositionOrZero(position, document_.Columns, *document_.Page);
      if (size_.Width > 0 && (x > size_.Width || x < std::min(left_, 0.0)))
        NotePosition(record, row, name, position);
    };
    check("XValue", record.XValue);
    if (record.Kind == ObjectKind::Line) check("X2Value", record.X2Value);
  }

  void CheckDown(const ObjectRecord& record, int row) {
    if (size_.Height > 0 && record.Y > size_.Height) NotePosition(record, row, "Y", std::to_string(record.Y));
  }

  void CheckBody(const ObjectRecord& record, int row) {
    const int owner = owners_.OwnerOf(row);
    const ObjectRecord& bar = document_.Objects[owner];
    const std::string kind(KindText(record.Kind));
    if (owner == 0 || record.Y < 0 || record.Y > bar.EndsAt)
      return Note(FindingKind::OutsideBodies, kind + " Y: " + std::to_string(record.Y), row);
    const int writtenIn = PlaceOf(row, places_).Bar;
    if (writtenIn != 0 && writtenIn != owner)
      Note(FindingKind::MovesSubsection, kind + ": " + bar.SectionTitle.Text(), row);
  }

  const Document& document_;
  std::span<const SourcePlace> places_;
  OwnerIndex owners_;
  PageSize size_;
  double left_;
  std::vector<Finding> findings_;
};

// The line of the head on which a key or a column stands; 0 if none does.
std::size_t HeadLine(std::string_view bytes, std::string_view name, const CodePage& page) {
  for (std::size_t line = 1; !bytes.empty(); ++line) {
    const std::string_view text = Trim(TakeLine(bytes));
    if (page.EqualsIgnoringCase(text, "[HEADER]")) return 0;
    if (page.EqualsIgnoringCase(Trim(NthToken(text, 1, '=')), name)) return line;
  }
  return 0;
}

// "PAPERSIZE: A4 -> A5", "$Left=500": settings and columns begin with their name.
std::string_view NameIn(std::string_view text) {
  return Trim(text.substr(0, text.find_first_of(":=")));
}

void PlaceInHead(Finding& finding, std::string_view bytes, const CodePage& page) {
  finding.Line = HeadLine(bytes, NameIn(finding.Text), page);
  finding.Column = finding.Line == 0 ? 0 : 1;
}

bool IsOfHead(const Finding& finding) {
  return finding.Row == 0 &&
         (finding.Kind == FindingKind::ValueChanges || finding.Kind == FindingKind::ColumnLost ||
          finding.Kind == FindingKind::ColumnAppears);
}

void Append(std::vector<Finding>& to, std::vector<Finding> more) {
  to.insert(to.end(), std::make_move_iterator(more.begin()), std::make_move_iterator(more.end()));
}

// What has no line stands behind the others.
void SortByPlace(std::vector<Finding>& findings) {
  const auto key = [](const Finding& finding) {
    return std::tuple(finding.Line == 0, finding.Line, finding.Column);
  };
  std::stable_sort(findings.begin(), findings.end(),
                   [&](const Finding& a, const Finding& b) { return key(a) < key(b); });
}

std::vector<Finding> PaintingFindings(const Document& document, const BarcodeState& bars,
                                      std::span<const SourcePlace> places) {
  std::vector<Finding> findings;
  for (const int row : bars.Stopped)
    findings.push_back(
        At(PlaceOf(row, places), FindingKind::PaintingStops, document.Objects[row].Content, row));
  return findings;
}

// A save gives every template its three sections; nothing is lost or misread by that.
bool IsEmptySection(const Finding& finding) {
  return finding.Kind == FindingKind::ObjectAppears &&
         (finding.Text == "SUBSECTION: [HEADER]" || finding.Text == "SUBSECTION: [DATA]" ||
          finding.Text == "SUBSECTION: [FOOTER]");
}

// What a save in memory gives back, told at the places of the file that was read first.
std::vector<Finding> LossesOf(const Document& document, std::span<const SourcePlace> places,
                              std::string_view bytes, const std::string& written,
                              const TextMeasurer& measurer) {
  NoPictures pictures;
  Result<ReadOutcome> back = ReadTemplateBytes(written, {measurer, pictures, "A4", document.Page, nullptr});
  if (!back) return {{0, 0, FindingKind::WillNotComeBack, back.Error().reason, 0}};
  DeriveGeometry(back->Read);
  std::vector<Finding> losses = CompareReadBack(document, back->Read).Findings;
  std::erase_if(losses, IsEmptySection);
  for (Finding& loss : losses) {
    const SourcePlace place = PlaceOf(loss.Row, places);
    loss.Line = place.Line;
    loss.Column = place.Column;
    if (IsOfHead(loss)) PlaceInHead(loss, bytes, *document.Page);
  }
  return losses;
}

CheckedTemplate Collect(Document& document, FoundInFile found, const TextMeasurer& measurer) {
  CheckedTemplate checked{std::move(found.Findings), {}};
  Append(checked.Findings, PageFindings(document, found.Places));
  WriteReport report;
  checked.Written = TemplateText(document, {}, report);
  Append(checked.Findings, LossesOf(document, found.Places, found.Bytes, checked.Written, measurer));
  SortByPlace(checked.Findings);
  return checked;
}

}  // namespace

std::vector<Finding> PageFindings(const Document& document, std::span<const SourcePlace> places) {
  return PageCheck(document, places).Run();
}

SavedCheck SavedFindings(const Document& page, ReadOutcome& file, std::string_view bytes) {
  DeriveGeometry(file.Read);
  ReadBack back = CompareReadBack(page, file.Read);
  for (std::size_t n = 0; n < back.Findings.size(); ++n) {
    Finding& finding = back.Findings[n];
    const SourcePlace place = PlaceOf(back.FileRows[n], file.Places);
    finding.Line = place.Line;
    finding.Column = place.Column;
    if (IsOfHead(finding)) PlaceInHead(finding, bytes, *page.Page);
  }
  std::vector<Finding> ofFile = std::move(file.Findings);
  Append(ofFile, PageFindings(file.Read, file.Places));
  for (Finding& finding : ofFile) {
    const auto row = static_cast<std::size_t>(finding.Row);
    finding.Row = row < back.PageRows.size() ? back.PageRows[row] : 0;
  }
  SavedCheck check{{}, back.Same(), back.Structure};
  check.Findings = std::move(back.Findings);
  Append(check.Findings, std::move(ofFile));
  SortByPlace(check.Findings);
  return check;
}

std::vector<Finding> OpenedFindings(const Document& document, FoundInFile found,
                                    const TextMeasurer& measurer) {
  // Writing lays a document out; the open one must not see that.
  Document copy = document;
  return Collect(copy, std::move(found), measurer).Findings;
}

CheckedTemplate CheckRead(ReadOutcome& outcome, std::string_view bytes, const TextMeasurer& measurer) {
  Document& document = outcome.Read;
  // As on opening: the page is painted once between the two, and painting stores what it found out.
  DeriveGeometry(document);
  BarcodeState bars;
  ApplyRedrawWriteBack(document, measurer, DisplayFilter::All, {}, &bars);
  DeriveGeometry(document);
  FoundInFile found{std::move(outcome.Findings), std::move(outcome.Places), bytes};
  Append(found.Findings, PaintingFindings(document, bars, found.Places));
  return Collect(document, std::move(found), measurer);
}

std::vector<Finding> FirstDifference(std::string_view bytes, std::string_view written) {
  if (bytes == written) return {};
  const auto [at, other] = std::mismatch(bytes.begin(), bytes.end(), written.begin(), written.end());
  const auto same = static_cast<std::size_t>(at - bytes.begin());
  const std::size_t lineStart = same == 0 ? 0 : bytes.rfind('\n', same - 1) + 1;
  const auto line = static_cast<std::size_t>(std::count(bytes.begin(), at, '\n')) + 1;
  const auto lineFrom = [&](std::string_view text) {
    std::string_view rest = text.substr(std::min(lineStart, text.size()));
    return rest.empty() ? std::string("(end)") : '"' + std::string(TakeLine(rest)) + '"';
  };
  const std::string before = lineFrom(bytes);
  const std::string after = lineFrom(written);
  return {{line, same - lineStart + 1, FindingKind::RewriteDiffers,
           before == after ? before + ", its end" : before + " -> " + after, 0}};
}

}  // namespace kev
