// SPDX-License-Identifier: MIT
// What is saved comes back. Thousands of random templates and documents; a failure prints the seed that makes
// the same one again.
#include <gtest/gtest.h>

#include <algorithm>
#include <clocale>
#include <locale>
#include <map>

#include "chart/definition.h"
#include "document/object_fields.h"
#include "document/sections.h"
#include "support/template_generator.h"
#include "support/templates.h"

namespace kev {
namespace {

using test::Lines;
using test::ReadText;
using test::TemplateGenerator;
using test::WriteText;

// A build that looks at every access takes its time over each read.
#if defined(__SANITIZE_ADDRESS__)
constexpr std::uint32_t kRuns = 150;
constexpr std::size_t kCutStep = 3;
#elif defined(__OPTIMIZE__)
constexpr std::uint32_t kRuns = 1000;
constexpr std::size_t kCutStep = 1;
#else
constexpr std::uint32_t kRuns = 400;
constexpr std::size_t kCutStep = 3;
#endif

std::optional<Document> Opened(std::string_view text) {
  const BuiltInMeasurer measurer;
  NoPictures pictures;
  Result<ReadOutcome> outcome = ReadTemplateBytes(text, {measurer, pictures});
  if (!outcome) return std::nullopt;
  DeriveGeometry(outcome->Read);
  return std::move(outcome->Read);
}

std::map<std::pair<std::string, std::string>, int> CountedRows(const Document& document) {
  std::map<std::pair<std::string, std::string>, int> count;
  for (int row = 1; row <= document.Objects.LastScanned(); ++row) {
    const ObjectRecord& record = document.Objects[row];
    if (record.Kind != ObjectKind::None && !IsBand(record.Kind))
      ++count[{std::string(KindText(record.Kind)), record.Content}];
  }
  return count;
}

// A row above its body is written without a step and comes back at the top of it, where its X decides on its
// place. Then the text settles one save later.
bool SettlesLate(const Document& document) {
  for (int row = 1; row <= document.Objects.LastScanned(); ++row) {
    if (document.Objects[row].Y < 0) return true;
  }
  return false;
}

void ExpectStableFromTheSecondSaveOn(const std::string& text) {
  std::optional<Document> document = Opened(text);
  if (!document) return;
  std::string saved = text;
  for (int saves = SettlesLate(*document) ? 3 : 2; saves > 0; --saves) {
    saved = WriteText(*document);
    document = Opened(saved);
    ASSERT_TRUE(document) << saved;
  }
  ASSERT_EQ(test::FirstDifference(WriteText(*document), saved), "") << "from the template\n" << text;
}

TEST(RoundTrip, OfSaneTemplatesIsStableAndLosesAndDoublesNoRow) {
  for (std::uint32_t seed = 1; seed <= kRuns; ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    const std::string text = TemplateGenerator(seed).Sane();
    ASSERT_NO_FATAL_FAILURE(ExpectStableFromTheSecondSaveOn(text));
    Document document = *Opened(text);
    const auto rows = CountedRows(document);
    ASSERT_EQ(CountedRows(*Opened(WriteText(document))), rows) << text;
  }
}

TEST(RoundTrip, OfQuirkyTemplatesIsStable) {
  for (std::uint32_t seed = 1; seed <= kRuns; ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    ASSERT_NO_FATAL_FAILURE(ExpectStableFromTheSecondSaveOn(TemplateGenerator(seed).Quirky()));
  }
}

TEST(RoundTrip, OfHostileTemplatesEndsWithAText) {
  for (std::uint32_t seed = 1; seed <= kRuns; ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    const std::string text = TemplateGenerator(seed).Hostile();
    std::optional<Document> document = Opened(text);
    if (!document) continue;
    const std::string saved = WriteText(*document);
    ASSERT_NE(saved.find("\r\n[DATA]\r\n"), std::string::npos) << text;
    Opened(saved);
  }
}

// ---- field by field

// What a template has no words for, by kind. An empty kind stands for all.
struct Loss {
  ObjectKind kind;
  std::string_view field;
};
constexpr Loss kLosses[] = {
    {ObjectKind::None, "SortKey"},  // holds the row
    {ObjectKind::None, "EndRow"},   // is a row
    {ObjectKind::Command, "AlignToGrid"}, {ObjectKind::Command, "ModifiableByEndUser"},
    {ObjectKind::TextBox, "Underline"},   {ObjectKind::TextBox, "Italic"},
    {ObjectKind::TextBox, "ValueType"},   {ObjectKind::Qr, "BarWidth"},
};

bool IsLost(ObjectKind kind, std::string_view field) {
  return std::any_of(std::begin(kLosses), std::end(kLosses), [&](const Loss& loss) {
    return loss.field == field && (loss.kind == kind || loss.kind == ObjectKind::None);
  });
}

// Equal but for the two forms that stand for another: a position of almost zero, and a bar of the width 1
// that nothing has set yet.
bool IsSame(const ObjectRecord& a, const ObjectRecord& b, const FieldRow& field) {
  if (field.name == "XValue" && a.XValue == "0" && b.XValue == "0.001") return true;
  if (field.name == "BarWidth" && a.BarWidth == 1 && b.BarWidth == 0) return true;
  return std::visit([&](auto member) { return a.*member == b.*member; }, field.member);
}

std::vector<std::string> ChartValuesThatComeBack(ObjectRecord record) {
  if (record.ChartValues.size() > 2 && !record.ChartValues[2].empty())
    record.ChartValues[1] = std::string(ChartKeys()[1].defaultValue);
  return record.ChartValues;
}

void ExpectSameRows(const Document& written, const SortedRows& writtenOrder, const Document& read,
                    const SortedRows& readOrder) {
  ASSERT_EQ(writtenOrder.Rows.size(), readOrder.Rows.size());
  for (std::size_t n = 0; n < readOrder.Rows.size(); ++n) {
    const ObjectRecord& a = written.Objects[writtenOrder.Rows[n]];
    const ObjectRecord& b = read.Objects[readOrder.Rows[n]];
    ASSERT_EQ(KindText(a.Kind), KindText(b.Kind)) << "place " << n;
    for (const FieldRow& field : kObjectFields) {
      if (!IsLost(a.Kind, field.name)) {
        ASSERT_TRUE(IsSame(a, b, field)) << KindText(a.Kind) << ' ' << field.name << " at place " << n;
      }
    }
    ASSERT_EQ(ChartValuesThatComeBack(a), b.ChartValues);
  }
}

TEST(RoundTrip, OfADocumentBringsBackEveryFieldThatATemplateHasWordsFor) {
  for (std::uint32_t seed = 1; seed <= kRuns; ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    Document document = TemplateGenerator(seed).SaneDocument();
    DeriveGeometry(document);
    const std::string text = WriteText(document);
    Document read = ReadText(text).Read;
    const SortedRows readOrder = DeriveGeometry(read);
    ASSERT_EQ(read.Settings, document.Settings) << text;
    ASSERT_EQ(read.Columns, document.Columns) << text;
    ASSERT_NO_FATAL_FAILURE(ExpectSameRows(document, SetSortKeys(document), read, readOrder)) << text;
    ASSERT_NO_FATAL_FAILURE(ExpectStableFromTheSecondSaveOn(text));
  }
}

// ---- cut files

const std::string& SmallTemplate() {
  static const std::string text = Lines(
      {"$Col_01=2400", "KEXVER=4", "[HEADER]", "  {DEF}", "  {100;} A {b} c{}", "  {Box=$Col_01 + 5,,2,3}",
       "  {Line=1,5,1}{Circ=1,,9}", "  {QrCode=1,,9}q{nobar}", "  {1;BarHeight=4;Ean13}1{NoBar}",
       "  {1;\\np}", "  {TBProps=285,Arial,8,,,1,0,0,0,2,2,2,;TextBox=1,,9,,t}", "  {Graph_Width=9}",
       "  {Buildgraph=1,}", "[FOOTER]", " [S:a,b]", "  {SubSectionHeight=3}{xy=0,5}",
       "  {Spacing=3;\\n}{Spacing=2;\\P}", "[DATA]", "  {Pic=a,1,,2,,x}"});
  return text;
}

void ExpectNoHarm(std::string_view text) {
  std::optional<Document> document = Opened(text);
  ASSERT_TRUE(document);
  Document again = *Opened(WriteText(*document));
  ASSERT_NE(WriteText(again), "");
}

TEST(RoundTrip, OfATemplateCutAtAnyByteDoesNoHarm) {
  const std::string& text = SmallTemplate();
  for (std::size_t at = 0; at <= text.size(); at += kCutStep) {
    SCOPED_TRACE("cut at " + std::to_string(at));
    ASSERT_NO_FATAL_FAILURE(ExpectNoHarm(std::string_view(text).substr(0, at)));
    ASSERT_NO_FATAL_FAILURE(ExpectNoHarm(std::string_view(text).substr(at)));
  }
}

// ---- locale

class CommaPoint : public std::numpunct<char> {
 protected:
  char do_decimal_point() const override { return ','; }
  char do_thousands_sep() const override { return '.'; }
  std::string do_grouping() const override { return "\3"; }
};

TEST(RoundTrip, DoesNotDependOnTheLocale) {
  const std::string text = Lines({"LM=1234.5", "MAXY=20000.25", "$Col_01=1234567.5", "KEXVER=4", "[HEADER]",
                                  "{s=12;W=2;1234.5;}A{}", "{Box=1234567,,1234567,2}"});
  const std::string plain = test::Rewrite(text);
  const std::locale before = std::locale::global(std::locale(std::locale::classic(), new CommaPoint));
  const std::string beforeC = std::setlocale(LC_ALL, nullptr);
  for (const char* name : {"de_DE.UTF-8", "de_DE.utf8", "es_ES.UTF-8", "pt_PT.UTF-8"}) {
    if (std::setlocale(LC_ALL, name) != nullptr) break;
  }
  const std::string elsewhere = test::Rewrite(text);
  std::setlocale(LC_ALL, beforeC.c_str());
  std::locale::global(before);
  EXPECT_EQ(elsewhere, plain);
  EXPECT_NE(plain.find("LM=1234.5\r\n"), std::string::npos);
}

}  // namespace
}  // namespace kev
