// SPDX-License-Identifier: MIT
// Whether a file can serve as sample data.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace kev {

enum class SampleKind { Kex, Ked, Other };
// By the last four characters of the name, in any case.
SampleKind SampleKindOf(std::string_view name);

enum class SampleFault {
  None,
  WrongName,    // neither .kex nor .ked
  NoHead,       // the first line that is not blank does not begin with TEMPLATE=
  BadLine,      // a line of a .kex file
  TooLong,      // a record of a .kex file with more values than a line may have
  BadVariable,  // a line of a .ked file
  NotReadable,  // the file is there and can't be read
};

struct SampleCheck {
  SampleFault Fault = SampleFault::None;
  std::size_t Line = 0;  // from 1, for the faults of a line
  std::string Reason;    // the system's, for a file that can't be read
};

// A record has its section's name in front of its values and a delimiter at both ends.
inline constexpr std::size_t kMostSampleValues = 197;

// Nothing is wrong with a file that does not exist. `path` is native.
SampleCheck CheckSampleFile(const std::string& path);
// The same for what the file holds. Blank lines are passed over, and counted.
SampleCheck CheckSampleText(std::string_view bytes, SampleKind kind);

}  // namespace kev
