// SPDX-License-Identifier: MIT
#include "app/compare_documents.h"

#include <algorithm>
#include <deque>
#include <unordered_map>

#include "app/compared_object.h"
#include "base/text.h"

namespace kev {
namespace {

// Texts are joined with a byte that none of them holds.
void Append(std::string& key, std::string_view part) {
  key.append(part).push_back('\0');
}

bool IsPlace(std::string_view field) {
  return field == "XValue" || field == "X2Value" || field == "Y";
}

struct Item {
  ComparedObject object;
  Item* partner = nullptr;

  explicit Item(ComparedObject from) : object(std::move(from)) {}
  bool IsSubsection() const { return object.Kind == ObjectKind::Subsection; }
  std::string Key() const {
    std::string key;
    Append(key, KindText(object.Kind));
    Append(key, object.Owner);
    return key;
  }
  std::string PlaceKey() const {
    std::string key;
    Append(key, object.Owner);
    Append(key, object["XValue"]);
    Append(key, object["Y"]);
    return key;
  }
};

// What two rows must share to be partners; an empty key has none.
using KeyOf = std::string (*)(const Item& item);

std::string Everything(const Item& item) {
  std::string key = item.Key();
  for (const ComparedValue& value : item.object.Values)
    Append(key, value.Text);
  return key;
}

std::string KindWordsAndPlace(const Item& item) {
  if (item.IsSubsection()) return {};
  std::string key = item.Key() + item.PlaceKey();
  Append(key, item.object.Words());
  return key;
}

std::string EverythingButPlace(const Item& item) {
  if (item.IsSubsection()) return {};
  std::string key = item.Key();
  for (const ComparedValue& value : item.object.Values)
    if (!IsPlace(value.Field)) Append(key, value.Text);
  return key;
}

std::string KindAndWords(const Item& item) {
  const std::string_view words = item.object.Words();
  return words.empty() ? std::string() : item.Key().append(words);
}

std::string KindAndPlace(const Item& item) {
  return item.IsSubsection() ? std::string() : item.Key() + item.PlaceKey();
}

std::string Place(const Item& item) {
  return item.IsSubsection() ? std::string() : item.PlaceKey();
}

std::string Kind(const Item& item) {
  return item.Key();
}

constexpr KeyOf kPasses[] = {Everything,   KindWordsAndPlace, EverythingButPlace,
                             KindAndWords, KindAndPlace,      Place};

// A row of either document; the other one's where it is the same.
struct Row {
  int row = 0;
  const ObjectRecord* record = nullptr;
  int same = 0;
};

std::vector<Row> RowsOf(const Document& document) {
  std::vector<Row> rows;
  for (int row = 1; row <= document.Objects.LastScanned(); ++row) {
    const ObjectRecord& record = document.Objects[row];
    if (IsCompared(record, *document.Page)) rows.push_back({row, &record, 0});
  }
  return rows;
}

// The same for rows that are the same; where the bar of a subsection stands does not count.
std::size_t RoughKey(const ObjectRecord& record) {
  const auto y = record.Kind == ObjectKind::Subsection ? 0U : static_cast<std::uint32_t>(record.Y);
  return std::hash<std::string_view>()(record.OwnerName) ^ (std::size_t{y} << 8) ^
         static_cast<std::size_t>(record.Kind);
}

// Most rows of two documents are the same, and need no texts to be compared.
void MatchSame(std::vector<Row>& first, std::vector<Row>& second, const CodePage& page) {
  std::unordered_multimap<std::size_t, Row*> byKey;
  byKey.reserve(second.size());
  for (Row& row : second)
    byKey.emplace(RoughKey(*row.record), &row);
  for (Row& row : first) {
    const auto [begin, end] = byKey.equal_range(RoughKey(*row.record));
    const auto found = std::find_if(
        begin, end, [&](const auto& entry) { return SameObjects(*row.record, *entry.second->record, page); });
    if (found == end) continue;
    row.same = found->second->row;
    found->second->same = row.row;
    byKey.erase(found);
  }
}

std::vector<Item> ItemsOf(const std::vector<Row>& rows, const CodePage& page) {
  std::vector<Item> items;
  for (const Row& row : rows)
    if (row.same == 0) items.emplace_back(ObjectOf(*row.record, row.row, page));
  return items;
}

// The rows of either document that have no partner yet are matched in their order.
void Match(std::vector<Item>& first, std::vector<Item>& second, KeyOf keyOf) {
  std::unordered_map<std::string, std::deque<Item*>> byKey;
  for (Item& item : second)
    if (item.partner == nullptr) byKey[keyOf(item)].push_back(&item);
  byKey.erase(std::string());
  for (Item& item : first) {
    if (item.partner != nullptr) continue;
    const auto found = byKey.find(keyOf(item));
    if (found == byKey.end() || found->second.empty()) continue;
    item.partner = found->second.front();
    item.partner->partner = &item;
    found->second.pop_front();
  }
}

class Comparison {
 public:
  Comparison(const Document& first, const Document& second) : first_(first), second_(second) {}

  DocumentChanges Run(Strangers strangers) {
    std::vector<Row> firstRows = RowsOf(first_);
    std::vector<Row> secondRows = RowsOf(second_);
    MatchSame(firstRows, secondRows, *first_.Page);
    NoteSame(secondRows);
    std::vector<Item> before = ItemsOf(firstRows, *first_.Page);
    std::vector<Item> after = ItemsOf(secondRows, *second_.Page);
    MatchSubsections(before, after, strangers);
    for (const KeyOf keyOf : kPasses)
      Match(before, after, keyOf);
    if (strangers == Strangers::Pair) Match(before, after, Kind);
    NoteObjects(before, after);
    NoteSettings();
    NoteColumns();
    return std::move(changes_);
  }

 private:
  const ObjectRecord& Before(const Item& item) const { return first_.Objects[item.object.Row]; }
  const ObjectRecord& After(const Item& item) const { return second_.Objects[item.object.Row]; }

  // Of what is the same in both, the later steps need its partner and the names of its subsections.
  void NoteSame(const std::vector<Row>& rows) {
    changes_.Partners.assign(static_cast<std::size_t>(second_.Objects.LastScanned()) + 1, 0);
    for (const Row& row : rows) {
      changes_.Partners[static_cast<std::size_t>(row.row)] = row.same;
      if (row.same != 0 && row.record->Kind == ObjectKind::Subsection)
        kept_.try_emplace(row.record->SectionName, row.record->SectionName);
    }
  }

  // A subsection whose fields changed is the same, and so is the only one of a section that lost its name:
  // what they hold is matched as if they had kept it.
  void MatchSubsections(std::vector<Item>& before, std::vector<Item>& after, Strangers strangers) {
    Match(before, after, [](const Item& item) { return item.IsSubsection() ? Everything(item) : ""; });
    Match(before, after, [](const Item& item) { return item.IsSubsection() ? KindAndWords(item) : ""; });
    for (Item& item : before)
      PairSubsection(item, after, [&](const Item& other) { return HasSameName(item, other); });
    for (Item& item : before) {
      const auto isAlone = [&](const Item& other) {
        return SectionOf(first_, other) == SectionOf(first_, item);
      };
      const auto mayBe = [&](const Item& other) {
        return SectionOf(second_, other) == SectionOf(first_, item);
      };
      if (strangers == Strangers::Leave && (Unmatched(before, isAlone) != 1 || Unmatched(after, mayBe) != 1))
        continue;
      PairSubsection(item, after, mayBe);
    }
    TakeNames(after);
  }

  bool HasSameName(const Item& item, const Item& other) const {
    return After(other).SectionName == Before(item).SectionName &&
           SectionOf(second_, other) == SectionOf(first_, item);
  }
  static const std::string& SectionOf(const Document& document, const Item& item) {
    return document.Objects[item.object.Row].SectionOwner;
  }

  template <typename Condition>
  static std::ptrdiff_t Unmatched(const std::vector<Item>& items, Condition condition) {
    return std::count_if(items.begin(), items.end(), [&](const Item& item) {
      return item.IsSubsection() && item.partner == nullptr && condition(item);
    });
  }

  template <typename Condition>
  static void PairSubsection(Item& item, std::vector<Item>& after, Condition condition) {
    if (!item.IsSubsection() || item.partner != nullptr) return;
    const auto found = std::find_if(after.begin(), after.end(), [&](const Item& other) {
      return other.IsSubsection() && other.partner == nullptr && condition(other);
    });
    if (found == after.end()) return;
    item.partner = &*found;
    found->partner = &item;
  }

  void TakeNames(std::vector<Item>& after) const {
    std::unordered_map<std::string_view, std::string> names = kept_;
    for (const Item& item : after)
      if (item.IsSubsection() && item.partner != nullptr)
        names.try_emplace(After(item).SectionName, Before(*item.partner).SectionName);
    for (Item& item : after)
      if (const auto found = names.find(item.object.Owner); found != names.end())
        item.object.Owner = found->second;
  }

  void NoteObjects(const std::vector<Item>& before, const std::vector<Item>& after) {
    for (const Item& item : before) {
      if (item.partner == nullptr) {
        changes_.Objects.push_back({item.object.Row, 0, {}});
      } else {
        const ComparedObject& partner = item.partner->object;
        changes_.Partners[static_cast<std::size_t>(partner.Row)] = item.object.Row;
        NoteDifferences(item.object, partner);
      }
    }
    for (const Item& item : after)
      if (item.partner == nullptr) changes_.Objects.push_back({0, item.object.Row, {}});
  }

  void NoteDifferences(const ComparedObject& mine, const ComparedObject& theirs) {
    ObjectChange change{mine.Row, theirs.Row, {}};
    if (mine.Kind != theirs.Kind) {
      change.Fields.push_back({"Kind", std::string(KindText(mine.Kind)), std::string(KindText(theirs.Kind))});
    } else {
      for (std::size_t at = 0; at < mine.Values.size() && at < theirs.Values.size(); ++at)
        if (mine.Values[at].Text != theirs.Values[at].Text)
          change.Fields.push_back({mine.Values[at].Field, mine.Values[at].Text, theirs.Values[at].Text});
    }
    if (!change.Fields.empty()) changes_.Objects.push_back(std::move(change));
  }

  void NoteSettings() {
    for (const SettingRow& row : SettingRows()) {
      SettingChange change{row.id, PrintedForm(first_, row.id), PrintedForm(second_, row.id)};
      if (change.Before != change.After) changes_.Settings.push_back(std::move(change));
    }
  }

  static std::string PrintedForm(const Document& document, Setting id) {
    if (!SettingIsPrinted(document.Settings, id, *document.Page)) return {};
    return std::string(Trim(PrintedValue(document.Settings, id)));
  }

  static bool Holds(const ColumnTable& columns, const Column& wanted) {
    for (int slot = 1; slot <= ColumnTable::kLastSlot; ++slot)
      if (columns[slot].Name == wanted.Name && columns[slot].Position == wanted.Position) return true;
    return false;
  }

  static std::vector<Column> ColumnsWithout(const ColumnTable& columns, const ColumnTable& others) {
    std::vector<Column> left;
    for (int slot = 1; slot <= ColumnTable::kLastSlot; ++slot)
      if (!columns[slot].Name.empty() && !Holds(others, columns[slot])) left.push_back(columns[slot]);
    return left;
  }

  // A table may hold a name more than once.
  void NoteColumns() {
    std::vector<Column> added = ColumnsWithout(second_.Columns, first_.Columns);
    for (const Column& column : ColumnsWithout(first_.Columns, second_.Columns)) {
      const auto moved = std::find_if(added.begin(), added.end(),
                                      [&](const Column& other) { return other.Name == column.Name; });
      ColumnChange change{column.Name, column.Position, std::nullopt};
      if (moved != added.end()) {
        change.After = moved->Position;
        added.erase(moved);
      }
      changes_.Columns.push_back(std::move(change));
    }
    for (const Column& column : added)
      changes_.Columns.push_back({column.Name, std::nullopt, column.Position});
  }

  const Document& first_;
  const Document& second_;
  DocumentChanges changes_;
  std::unordered_map<std::string_view, std::string> kept_;  // names of subsections that are the same
};

}  // namespace

DocumentChanges CompareDocuments(const Document& first, const Document& second, Strangers strangers) {
  return Comparison(first, second).Run(strangers);
}

}  // namespace kev
