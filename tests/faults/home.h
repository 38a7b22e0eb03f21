// SPDX-License-Identifier: MIT
// The folders of a program under faults, which can be put back as they were between two runs.
#pragma once

#include <map>
#include <string>

#include "support/run_tool.h"

namespace kev::faults {

class Home {
 public:
  Home();

  std::string Path(const std::string& name) const { return root_ / ("home/" + name); }
  // All that the program may touch.
  std::string Folder() const { return root_ / "home"; }
  std::string Template() const { return Path("work/invoice.kev"); }

  // What PutBack gives back from now on.
  void Remember();
  void PutBack() const;
  // The home is as it was made.
  void Clear();

  // Files by their names below the home, with their bytes.
  using All = std::map<std::string, std::string>;
  All Files() const;
  // All files as one text, under names that do not tell the process which made them.
  static std::string State(const All& files);

 private:
  void Furnish() const;

  test::TemporaryFolder root_;
  std::map<std::string, std::string> bytes_;  // by path
};

}  // namespace kev::faults
