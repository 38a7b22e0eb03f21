// SPDX-License-Identifier: MIT
#include "support/templates.h"

#include <gtest/gtest.h>

#include <utility>

#include "base/text.h"
#include "document/sections.h"

namespace kev::test {
namespace {

const ObjectRecord& BlankRecord() {
  static const ObjectRecord blank;
  return blank;
}

}  // namespace

std::string Lines(std::initializer_list<std::string_view> lines) {
  std::string text;
  for (const std::string_view line : lines) {
    text += line;
    text += "\r\n";
  }
  return text;
}

ReadOutcome ReadText(std::string_view text) {
  const BuiltInMeasurer measurer;
  NoPictures pictures;
  Result<ReadOutcome> outcome = ReadTemplateBytes(text, {measurer, pictures});
  if (outcome) return std::move(*outcome);
  ADD_FAILURE() << "the template is refused: " << outcome.Error().reason;
  return {};
}

ReadOutcome ReadLayout(std::initializer_list<std::string_view> lines) {
  return ReadText("[HEADER]\r\n" + Lines(lines));
}

std::vector<const ObjectRecord*> RowsOfKind(const Document& document, ObjectKind kind) {
  std::vector<const ObjectRecord*> rows;
  for (int row = 1; row <= document.Objects.LastScanned(); ++row) {
    if (document.Objects[row].Kind == kind) rows.push_back(&document.Objects[row]);
  }
  return rows;
}

const ObjectRecord& OnlyRow(const Document& document, ObjectKind kind) {
  const auto rows = RowsOfKind(document, kind);
  EXPECT_EQ(rows.size(), 1U) << "rows of kind " << KindText(kind);
  return rows.size() == 1 ? *rows.front() : BlankRecord();
}

std::vector<std::string> ContentsOf(const Document& document, ObjectKind kind) {
  std::vector<std::string> contents;
  for (const ObjectRecord* record : RowsOfKind(document, kind))
    contents.push_back(record->Content);
  return contents;
}

const ObjectRecord& BarNamed(const Document& document, std::string_view sectionName) {
  for (const ObjectRecord* bar : RowsOfKind(document, ObjectKind::Subsection)) {
    if (bar->SectionName == sectionName) return *bar;
  }
  ADD_FAILURE() << "no subsection " << sectionName;
  return BlankRecord();
}

std::string WriteText(Document& document, const WriteOptions& options) {
  WriteReport report;
  return TemplateText(document, options, report);
}

std::string Rewrite(std::string_view text, const WriteOptions& options) {
  ReadOutcome outcome = ReadText(text);
  DeriveGeometry(outcome.Read);
  return WriteText(outcome.Read, options);
}

std::vector<std::string> LayoutLines(std::string_view text) {
  std::vector<std::string> layout;
  bool inHead = true;
  for (const std::string_view line : SplitLines(text)) {
    inHead = inHead && line != "[HEADER]";
    if (!inHead) layout.emplace_back(line);
  }
  return layout;
}

std::vector<std::string> FilledLines(std::string_view text) {
  std::vector<std::string> filled;
  for (const std::string_view line : SplitLines(text)) {
    if (!Trim(line).empty()) filled.emplace_back(Trim(line));
  }
  return filled;
}

std::vector<std::string> HeaderBody(const std::string& text) {
  std::vector<std::string> body;
  for (const std::string& line : FilledLines(text.substr(text.find("\r\n[HEADER]\r\n") + 2))) {
    if (line == "[FOOTER]") break;
    body.push_back(line);
  }
  if (!body.empty()) body.erase(body.begin());  // [HEADER]
  return body;
}

std::vector<std::string> BodyOf(std::initializer_list<std::string_view> layout, const WriteOptions& options) {
  return HeaderBody(Rewrite("[HEADER]\r\n" + Lines(layout), options));
}

std::vector<std::string> BodyAfter(ReadOutcome outcome) {
  DeriveGeometry(outcome.Read);
  return HeaderBody(WriteText(outcome.Read));
}

ObjectRecord& FirstOf(Document& document, ObjectKind kind) {
  for (int row = 1; row <= document.Objects.LastScanned(); ++row) {
    if (std::as_const(document.Objects)[row].Kind == kind) return document.Objects[row];
  }
  ADD_FAILURE() << "no row of kind " << KindText(kind);
  return document.Objects[0];
}

std::string FirstDifference(std::string_view actual, std::string_view expected) {
  for (int line = 1; actual != expected; ++line) {
    const std::string_view a = actual.substr(0, actual.find('\n'));
    const std::string_view b = expected.substr(0, expected.find('\n'));
    if (a != b)
      return "line " + std::to_string(line) + ": \"" + std::string(a) + "\" instead of \"" + std::string(b) +
             "\"";
    actual.remove_prefix(std::min(actual.size(), a.size() + 1));
    expected.remove_prefix(std::min(expected.size(), b.size() + 1));
  }
  return {};
}

}  // namespace kev::test
