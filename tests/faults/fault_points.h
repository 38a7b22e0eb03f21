// SPDX-License-Identifier: MIT
// Calls of the system that can be made to fail, one after the other: what a campaign and the library that
// stands in front of those calls have in common.
#pragma once

#include <cstdint>

namespace kev::faults {

// What a call is; a plan names the sum of those it counts.
enum Kind : std::uint32_t {
  kOpen = 1,
  kWrite = 2,
  kSync = 4,
  kName = 8,  // rename, link
  kClose = 16,
  kRemove = 32,
  kFolder = 64,
  kTruncate = 128,
  kMode = 256,
  kLock = 512,
  kRead = 1024,
  kMemory = 2048,
};
inline constexpr std::uint32_t kFileKinds = kMemory - 1;

enum class Manner : std::uint32_t {
  Once,    // the call of the number fails
  Onward,  // it and all behind it
  Kill,    // the process is killed in its place
  Short,   // a write or read takes only half of its bytes; other calls go well
};

// Plain data, so that a file that two processes map can hold it.
struct Control {
  std::uint32_t Armed;
  std::uint32_t Kinds;
  Manner How;
  std::int32_t Error;   // what errno becomes
  std::int64_t At;      // the call, counted from 1
  std::int64_t Calls;   // counted since Armed was set
  std::int64_t Failed;  // those that were made to fail
  std::uint32_t Last;   // the kind of the call that failed first
  char Folder[256];     // calls on files outside do not count; empty counts all
  std::uint64_t Least;  // allocations of fewer bytes do not count
};

// The control of this process: a block of its own, or the file that KEV_FAULTS names when the process starts.
// Calls count in the first thread alone.
extern "C" Control* kev_faults();
// Another block takes the place of the own one, for a control that is shared with children.
extern "C" void kev_faults_use(Control* control);

}  // namespace kev::faults
