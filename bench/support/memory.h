// SPDX-License-Identifier: MIT
// What work adds to the memory of the process.
#pragma once

#include <malloc.h>

#include <cstdlib>
#include <fstream>
#include <string>

namespace kev::bench {

// Kilobytes of a line of the process's own status.
inline double StatusOf(const std::string& key) {
  std::ifstream status("/proc/self/status");
  for (std::string line; std::getline(status, line);)
    if (line.starts_with(key)) return std::strtod(line.c_str() + key.size(), nullptr);
  return 0;
}

// How much the memory of the process grows at most while the work runs, in kilobytes.
template <typename Work>
double PeakOf(const Work& work) {
  // What earlier work has given back would hide what this one takes.
  ::malloc_trim(0);
  std::ofstream("/proc/self/clear_refs") << "5";
  const double before = StatusOf("VmRSS:");
  work();
  return StatusOf("VmHWM:") - before;
}

}  // namespace kev::bench
