// SPDX-License-Identifier: MIT
// Short ways to read a template from literal lines and to look at what came of it.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "template/reader.h"
#include "template/writer.h"

namespace kev::test {

// The lines, each with the line end of the files.
std::string Lines(std::initializer_list<std::string_view> lines);

// Reads a text that must be accepted; a refusal fails the test and gives an empty document.
ReadOutcome ReadText(std::string_view text);
// The lines below a head of nothing but [HEADER].
ReadOutcome ReadLayout(std::initializer_list<std::string_view> lines);

std::vector<const ObjectRecord*> RowsOfKind(const Document& document, ObjectKind kind);
// The one row of a kind; another number of them fails the test and gives a blank record.
const ObjectRecord& OnlyRow(const Document& document, ObjectKind kind);
std::vector<std::string> ContentsOf(const Document& document, ObjectKind kind);
// The subsection with this SectionName.
const ObjectRecord& BarNamed(const Document& document, std::string_view sectionName);

std::string WriteText(Document& document, const WriteOptions& options = {});
// As on opening and saving: read, derive the geometry, write.
std::string Rewrite(std::string_view text, const WriteOptions& options = {});
// The lines from [HEADER] on, without their ends.
std::vector<std::string> LayoutLines(std::string_view text);
// The lines of a text that are not empty, without their ends and the blanks around them.
std::vector<std::string> FilledLines(std::string_view text);

// What a saved text says between [HEADER] and [FOOTER]: the lines that are not empty.
std::vector<std::string> HeaderBody(const std::string& text);
// The same of a layout that is read and written again, and of a document that was read and then changed.
std::vector<std::string> BodyOf(std::initializer_list<std::string_view> layout,
                                const WriteOptions& options = {});
std::vector<std::string> BodyAfter(ReadOutcome outcome);

// The first row of a kind, to be changed; where there is none the test fails.
ObjectRecord& FirstOf(Document& document, ObjectKind kind);

// The first line in which two texts differ, in both forms; empty where they are equal.
std::string FirstDifference(std::string_view actual, std::string_view expected);

}  // namespace kev::test
