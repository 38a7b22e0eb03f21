// SPDX-License-Identifier: MIT
// Whether a file can serve as sample data.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "base/line_reader.h"

namespace kev {

enum class SampleKind : std::uint8_t { Kex, Ked, Other };
// By the last four characters of the name, in any case.
SampleKind SampleKindOf(std::string_view name);

enum class SampleFault : std::uint8_t {
  None,
  WrongName,    // neither .kex nor .ked
  NoHead,       // the first line that is not blank does not begin with TEMPLATE=
  BadLine,      // a line of a .kex file
  TooLong,      // a record of a .kex file with more values than a line may have
  BadVariable,  // a line of a .ked file
  NotReadable,  // the file is there and can't be read
  Stopped,      // the watch ended the reading before anything was found
};

struct SampleCheck {
  SampleFault Fault = SampleFault::None;
  std::size_t Line = 0;      // from 1, for the faults of a line
  std::string Reason = {};   // the system's, for a file that can't be read
  bool UnicodeMark = false;  // the head is not found because an editor has put a mark in front of it
};

// A record has its section's name in front of its values and a delimiter at both ends.
inline constexpr std::size_t kMostSampleValues = 197;

// "1", "2", "3:" and the line, or "4"; empty for a good file and one that was not read to its end.
std::string SampleCode(const SampleCheck& check);

// Judges the lines of a file one by one. Blank lines are passed over, and counted; a line that the reader had
// to cut is wrong, since nothing can hold it.
class SampleLineCheck {
 public:
  explicit SampleLineCheck(SampleKind kind) : kind_(kind) {}

  // `line` is trimmed. False when the file is bad: Result tells why.
  bool Add(std::string_view line, bool cut);
  // Behind the last line.
  void End();
  // Whether the line given last is a record, a page mark or a variable, and not blank or the head.
  bool HasContent() const { return hasContent_; }
  const SampleCheck& Result() const { return result_; }

 private:
  bool AddHead(std::string_view line, bool cut);
  SampleFault FaultOf(std::string_view line, bool cut) const;

  SampleKind kind_;
  std::size_t number_ = 0;
  bool headSeen_ = false;
  bool hasContent_ = false;
  SampleCheck result_;
};

// Nothing is wrong with a file that does not exist. `path` is native. Reads in bounded memory and leaves no
// file open; `watch` may end it early.
SampleCheck CheckSampleFile(const std::string& path, LineReader::Watch watch = {});
// The same for what the file holds.
SampleCheck CheckSampleText(std::string_view bytes, SampleKind kind);

}  // namespace kev
