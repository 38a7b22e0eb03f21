// SPDX-License-Identifier: MIT
// Every example goes through opening and saving. What comes back is compared field by field; the few things
// that a template has no words for are named here, example by example.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "document/object_fields.h"
#include "document/sections.h"
#include "support/run_tool.h"
#include "support/templates.h"

namespace kev {
namespace {

using test::ReadText;
using test::WriteText;

struct Loss {
  std::string_view example;  // empty: any
  ObjectKind kind;           // None: any
  std::string_view field;
  std::string_view why;
};

constexpr Loss kLosses[] = {
    {"", ObjectKind::None, "SortKey", "holds the row, and rows are taken in the order of the file"},
    {"", ObjectKind::None, "EndRow", "is a row"},
    {"", ObjectKind::Command, "AlignToGrid", "a command has no flags in a template"},
    {"", ObjectKind::Command, "ModifiableByEndUser", "a command has no flags in a template"},
    {"", ObjectKind::TextBox, "Underline", "has no place in the list of a text box"},
    {"", ObjectKind::TextBox, "Italic", "has no place in the list of a text box"},
    {"", ObjectKind::TextBox, "ValueType", "is written for labels only"},
    {"", ObjectKind::Qr, "BarWidth", "is written for bar codes only"},
    {"inspection_form.kev", ObjectKind::Subsection, "StartY", "a start of 0 is written as 1"},
    {"inspection_form.kev", ObjectKind::Subsection, "Content", "names the start"},
};

bool IsLost(const std::string& example, ObjectKind kind, std::string_view field) {
  return std::any_of(std::begin(kLosses), std::end(kLosses), [&](const Loss& loss) {
    return loss.field == field && (loss.kind == kind || loss.kind == ObjectKind::None) &&
           (loss.example.empty() || loss.example == example);
  });
}

std::vector<std::string> Examples() {
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(KEV_EXAMPLES_DIR)) {
    if (entry.path().extension() == ".kev") names.push_back(entry.path().filename().string());
  }
  std::sort(names.begin(), names.end());
  return names;
}

// The rows in the order in which a save lays them: by section, then by place.
std::vector<int> RowsAsSaved(Document& document) {
  std::vector<int> rows;
  const OwnerIndex owners(document);
  const SortedRows sorted = SetSortKeys(document);
  for (const std::string_view section : {"[HEADER]", "[FOOTER]", "[DATA]"}) {
    for (const int row : sorted.Rows) {
      const ObjectRecord& record = document.Objects[row];
      const int bar = record.Kind == ObjectKind::Subsection ? row : owners.OwnerOf(row);
      if (document.Objects[bar].SectionOwner == section) rows.push_back(row);
    }
  }
  return rows;
}

class Example : public testing::TestWithParam<std::string> {
 protected:
  std::string Text() const { return test::ReadBytes(std::string(KEV_EXAMPLES_DIR) + "/" + GetParam()); }
};

TEST_P(Example, IsStableFromTheSecondSaveOn) {
  const std::string second = test::Rewrite(test::Rewrite(Text()));
  EXPECT_EQ(test::FirstDifference(test::Rewrite(second), second), "");
}

TEST_P(Example, ComesBackFieldByField) {
  Document written = ReadText(Text()).Read;
  DeriveGeometry(written);
  Document read = ReadText(WriteText(written)).Read;
  DeriveGeometry(read);
  EXPECT_EQ(read.Settings, written.Settings);
  EXPECT_EQ(read.Columns, written.Columns);
  const std::vector<int> writtenRows = RowsAsSaved(written);
  const std::vector<int> readRows = RowsAsSaved(read);
  ASSERT_EQ(writtenRows.size(), readRows.size());
  EXPECT_GE(readRows.size(), 20U);
  for (std::size_t n = 0; n < readRows.size(); ++n) {
    const ObjectRecord& a = written.Objects[writtenRows[n]];
    const ObjectRecord& b = read.Objects[readRows[n]];
    ASSERT_EQ(KindText(a.Kind), KindText(b.Kind)) << "place " << n;
    for (const FieldRow& field : kObjectFields) {
      // The surface lays sections out as they stand in the file.
      if (field.name == "AbsoluteY" || IsLost(GetParam(), a.Kind, field.name)) continue;
      const bool almostZero = field.name == "XValue" && a.XValue == "0" && b.XValue == "0.001";
      const bool unsetBar = field.name == "BarWidth" && a.BarWidth == 1 && b.BarWidth == 0;
      EXPECT_TRUE(almostZero || unsetBar ||
                  std::visit([&](auto member) { return a.*member == b.*member; }, field.member))
          << KindText(a.Kind) << ' ' << field.name << " of \"" << a.Content << "\" at place " << n;
    }
    EXPECT_EQ(a.ChartValues, b.ChartValues);
  }
}

std::string TestName(const testing::TestParamInfo<std::string>& example) {
  return example.param.substr(0, example.param.find('.'));
}

INSTANTIATE_TEST_SUITE_P(Examples, Example, testing::ValuesIn(Examples()), TestName);

}  // namespace
}  // namespace kev
