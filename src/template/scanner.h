// SPDX-License-Identifier: MIT
// Takes a template apart: the preamble, the section lines, literal text and command blocks.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "chart/definition.h"
#include "template/reader.h"

namespace kev {

// The state of one read. Every read begins with a fresh one.
struct ReaderState {
  Document& document;
  const ReadServices& services;
  AttributeState attributes;
  LayoutCursor cursor;
  ChartDefinition chart;
  std::vector<Finding> findings;
  std::size_t line = 0;       // of the file, counted from 1
  std::size_t column = 0;     // of the block that is being applied, counted from 1
  std::size_t textBytes = 0;  // in all rows so far
  std::vector<SourcePlace> places{};

  // Findings name the bar of the subsection; `AttachRows` gives them their object.
  void Note(FindingKind kind, std::string_view text);
  // Creates a row; a row of any kind but a page break ends the memory of one.
  int Add(const NewObject& object);
  void NotePositions(const ObjectRecord& record, int row);
};

// Where a finding belongs to an object: the first that stands at its place or behind it in the same
// subsection. A block that has become text belongs to the text it stands in.
void AttachRows(std::vector<Finding>& findings, const std::vector<SourcePlace>& places);

// Whether the text of a block is made of commands and of nothing else.
bool LooksLikeCommands(std::string_view block, const CodePage& page);

// The prepared line: the line itself, as it nearly always stays, else `changed`, which is used again for
// each.
std::string_view PreprocessLine(std::string& changed, std::string_view line, char open, char close,
                                const CodePage& page);

// Where the next of two characters stands, from `from` on; the size of the text where there is none.
inline std::size_t FindEither(std::string_view text, std::size_t from, char one, char other) {
  const char* at = text.data() + from;
  const char* const end = text.data() + text.size();
  while (at != end && *at != one && *at != other)
    ++at;
  return static_cast<std::size_t>(at - text.data());
}

// Applies the text of one command block.
void ApplyCommands(ReaderState& state, std::string_view block);

}  // namespace kev
