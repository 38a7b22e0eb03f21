// SPDX-License-Identifier: MIT
#include <iostream>
#include <nlohmann/json.hpp>

#include "base/numbers.h"
#include "commands.h"
#include "document/sections.h"
#include "template_pair.h"

namespace kev::tool {
namespace {

using Json = nlohmann::ordered_json;

// A bare number as it is; any other text in quotes, with what cannot be seen spelled out.
std::string Shown(const std::string& text, const CodePage& page) {
  const bool isNumber = !text.empty() && text == FormatNumber(NumericPrefix(text));
  return isNumber ? text : Json(page.ToUtf8(text)).dump();
}

std::string_view WordsOf(const ObjectRecord& record) {
  if (record.Kind == ObjectKind::Subsection) return record.SectionTitle;
  return record.Kind == ObjectKind::Picture ? record.PicturePath.Text() : record.Content;
}

// The name of the subsection that holds the object; a section itself is named by its bracketed word.
std::string OwnerOf(const ObjectRecord& record) {
  return (record.OwnerName.ends_with(']') ? "[" : "") + record.OwnerName;
}

std::string_view ChangeWord(const ObjectChange& change) {
  if (change.After == 0) return "removed";
  return change.Before == 0 ? "added" : "changed";
}

std::string_view ChangeWord(bool before, bool after) {
  if (before && after) return "changed";
  return before ? "removed" : "added";
}

class Printer {
 public:
  explicit Printer(const TemplatePair& pair) : pair_(pair), page_(*pair.First.Page) {}

  void Text(const DocumentChanges& changes) const {
    for (const SettingChange& change : changes.Settings) {
      const auto [before, after] = Values(change);
      std::cout << "changed setting " << RowOf(change.Id).key << ": " << Shown(before, page_) << " -> "
                << Shown(after, page_) << '\n';
    }
    for (const ColumnChange& change : changes.Columns)
      ColumnText(change);
    for (const ObjectChange& change : changes.Objects)
      ObjectText(change);
  }

  void AsJson(const DocumentChanges& changes) const {
    Json settings = Json::array(), columns = Json::array(), objects = Json::array();
    for (const SettingChange& change : changes.Settings) {
      const auto [before, after] = Values(change);
      settings.push_back(
          {{"key", RowOf(change.Id).key}, {"before", page_.ToUtf8(before)}, {"after", page_.ToUtf8(after)}});
    }
    for (const ColumnChange& change : changes.Columns)
      columns.push_back({{"change", ChangeWord(change.Before.has_value(), change.After.has_value())},
                         {"name", page_.ToUtf8(change.Name)},
                         {"before", PositionJson(change.Before)},
                         {"after", PositionJson(change.After)}});
    for (const ObjectChange& change : changes.Objects)
      objects.push_back(ObjectJson(change));
    const Json all = {
        {"same", changes.None()}, {"settings", settings}, {"columns", columns}, {"objects", objects}};
    std::cout << all.dump(2) << '\n';
  }

 private:
  struct Both {
    std::string before, after;
  };

  // What counts, unless two different lines of a file count the same.
  Both Values(const SettingChange& change) const {
    const std::string& before = pair_.First.Settings[change.Id];
    const std::string& after = pair_.Second.Settings[change.Id];
    return before == after ? Both{change.Before, change.After} : Both{before, after};
  }

  const ObjectRecord& RecordOf(const ObjectChange& change) const {
    return change.Before != 0 ? pair_.First.Objects[change.Before] : pair_.Second.Objects[change.After];
  }

  void ColumnText(const ColumnChange& change) const {
    std::cout << ChangeWord(change.Before.has_value(), change.After.has_value()) << " column "
              << page_.ToUtf8(change.Name) << ": ";
    if (change.Before) std::cout << FormatNumber(*change.Before);
    if (change.Before && change.After) std::cout << " -> ";
    if (change.After) std::cout << FormatNumber(*change.After);
    std::cout << '\n';
  }

  void ObjectText(const ObjectChange& change) const {
    const ObjectRecord& record = RecordOf(change);
    std::cout << ChangeWord(change) << ' ' << KindText(record.Kind);
    if (!WordsOf(record).empty()) std::cout << ' ' << Json(page_.ToUtf8(WordsOf(record))).dump();
    if (record.Kind != ObjectKind::Subsection)
      std::cout << " in " << page_.ToUtf8(OwnerOf(record)) << " at " << page_.ToUtf8(record.XValue) << ", "
                << record.Y;
    std::cout << '\n';
    for (const FieldChange& field : change.Fields)
      std::cout << "  " << field.Field << ": " << Shown(field.Before, page_) << " -> "
                << Shown(field.After, page_) << '\n';
  }

  static Json PositionJson(const std::optional<double>& position) {
    return position ? Json::parse(FormatNumber(*position)) : Json(nullptr);
  }

  Json ObjectJson(const ObjectChange& change) const {
    const ObjectRecord& record = RecordOf(change);
    Json fields = Json::array();
    for (const FieldChange& field : change.Fields)
      fields.push_back({{"field", field.Field},
                        {"before", page_.ToUtf8(field.Before)},
                        {"after", page_.ToUtf8(field.After)}});
    return {{"change", ChangeWord(change)},
            {"kind", KindText(record.Kind)},
            {"text", page_.ToUtf8(WordsOf(record))},
            {"owner", page_.ToUtf8(OwnerOf(record))},
            {"x", page_.ToUtf8(record.XValue)},
            {"y", record.Y},
            {"row", {{"before", RowJson(change.Before)}, {"after", RowJson(change.After)}}},
            {"fields", fields}};
  }
  static Json RowJson(int row) { return row == 0 ? Json(nullptr) : Json(row); }

  const TemplatePair& pair_;
  const CodePage& page_;
};

}  // namespace

int Diff(const DiffChoice& choice) {
  // Both are looked at, so that one call tells what is wrong with either.
  std::optional<ReadOutcome> first = Open(choice.first).Outcome;
  std::optional<ReadOutcome> second = Open(choice.second).Outcome;
  if (!first || !second) return kRefused;
  TemplatePair pair{std::move(first->Read), std::move(second->Read)};
  DeriveGeometry(pair.First);
  DeriveGeometry(pair.Second);
  const DocumentChanges changes = CompareDocuments(pair.First, pair.Second, Strangers::Leave);
#ifdef KEV_WITH_QT
  if (!choice.image.empty()) {
    if (const std::optional<std::string> reason = RenderDiff(choice, pair, changes)) {
      std::cerr << choice.image << ": " << *reason << '\n';
      return kRefused;
    }
  }
#endif
  if (choice.json) {
    Printer(pair).AsJson(changes);
  } else {
    Printer(pair).Text(changes);
  }
  return changes.None() ? kGood : kRefused;
}

}  // namespace kev::tool
