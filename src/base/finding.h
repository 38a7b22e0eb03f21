// SPDX-License-Identifier: MIT
// What a reader or a check noticed and did not stop for. Findings are values; whoever asked shows them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace kev {

enum class FindingKind : std::uint8_t {
  UnknownKey,       // an item of a block that means nothing
  LostText,         // text that no block follows, or that a block's end discards
  DisarmedBlock,    // a block without a position that its own delimiters turn into text
  LateKey,          // a head key past line 100
  RepeatedKey,      // a head key that stands a second time
  DanglingColumn,   // a position that names no column
  ValueOutOfRange,  // a value that means nothing where it stands, or does not fit its field
  WillNotComeBack,  // a form that saving cannot keep
  MissingFile,      // a file that the template names is not there
  // What a saved file gives back otherwise than the page shows it.
  ValueChanges,   // a value of an object or setting
  ObjectLost,     // an object
  ObjectAppears,  // an object that the page does not hold
  KindChanges,    // an object becomes one of another kind
  ColumnLost,     // a column
  ColumnAppears,  // a column that the page does not hold
  PaintingStops,  // a bar code that reaches farther than it can be painted
  NameWithColon,  // a subsection made for records whose name it cannot hold
  // What stands where nothing of it will be seen.
  PastPage,         // a position past the edge of the page
  OutsideBodies,    // an object that lies in no subsection
  MovesSubsection,  // an object that lies in another subsection than the one it is written in
  RewriteDiffers    // a line that a save would write otherwise
};
inline constexpr std::size_t kFindingKinds = 21;

// "unknown key", "text is lost" and so on, for the command line; a list in the window takes its words from
// the language file.
std::string_view FindingText(FindingKind kind);
// "unknown-key", "text-lost" and so on, for programs that read what a check found. These names never change.
std::string_view FindingName(FindingKind kind);

struct Finding {
  std::size_t Line = 0;    // of the file, counted from 1; 0 where it belongs to no line
  std::size_t Column = 0;  // counted from 1; 0 where it belongs to the whole line
  FindingKind Kind = FindingKind::UnknownKey;
  std::string Text;  // the text concerned, in the code page of the file
  int Row = 0;       // the object concerned, else the bar of its subsection; 0 where there is none
};

}  // namespace kev
