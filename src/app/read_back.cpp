// SPDX-License-Identifier: MIT
#include "app/read_back.h"

#include "app/compare_documents.h"
#include "base/numbers.h"

namespace kev {
namespace {

constexpr std::size_t kMostFindings = 1000;

class Report {
 public:
  Report(const Document& page, const Document& file) : page_(page), file_(file) {}

  ReadBack Of(const DocumentChanges& changes) {
    result_.PageRows = changes.Partners;
    for (const ObjectChange& change : changes.Objects)
      Object(change);
    for (const SettingChange& change : changes.Settings)
      NoteStructure(0, FindingKind::ValueChanges,
                    std::string(RowOf(change.Id).key) + ": " + change.Before + " -> " + change.After);
    for (const ColumnChange& change : changes.Columns)
      if (change.Before) NoteStructure(0, FindingKind::ColumnLost, Line(change.Name, *change.Before));
    for (const ColumnChange& change : changes.Columns)
      if (change.After) NoteStructure(0, FindingKind::ColumnAppears, Line(change.Name, *change.After));
    return std::move(result_);
  }

 private:
  void Note(int row, FindingKind kind, std::string text, int fileRow = 0) {
    if (result_.Findings.size() >= kMostFindings) return;
    result_.Findings.push_back({0, 0, kind, std::move(text), row});
    result_.FileRows.push_back(fileRow);
  }
  void NoteStructure(int row, FindingKind kind, std::string text, int fileRow = 0) {
    result_.Structure = true;
    Note(row, kind, std::move(text), fileRow);
  }

  void Object(const ObjectChange& change) {
    if (change.After == 0)
      return NoteStructure(change.Before, FindingKind::ObjectLost, Shown(page_, change.Before));
    if (change.Before == 0)
      return NoteStructure(0, FindingKind::ObjectAppears, Shown(file_, change.After), change.After);
    const std::string kind(KindText(page_.Objects[change.Before].Kind));
    for (const FieldChange& field : change.Fields) {
      const std::string values = field.Before + " -> " + field.After;
      if (field.Field == "Kind") {
        NoteStructure(change.Before, FindingKind::KindChanges, values, change.After);
      } else {
        Note(change.Before, FindingKind::ValueChanges, kind + " " + std::string(field.Field) + ": " + values,
             change.After);
      }
    }
  }

  static std::string Shown(const Document& document, int row) {
    const ObjectRecord& record = document.Objects[row];
    const std::string& text = record.SectionTitle.empty() ? record.Content : record.SectionTitle.Text();
    return std::string(KindText(record.Kind)) + (text.empty() ? "" : ": ") + text;
  }

  static std::string Line(const std::string& name, double position) {
    return name + "=" + FormatNumber(position);
  }

  const Document& page_;
  const Document& file_;
  ReadBack result_;
};

}  // namespace

ReadBack CompareReadBack(const Document& page, const Document& file) {
  return Report(page, file).Of(CompareDocuments(page, file, Strangers::Pair));
}

}  // namespace kev
