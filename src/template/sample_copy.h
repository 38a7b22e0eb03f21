// SPDX-License-Identifier: MIT
// A copy of the document's sample data that tells the viewer which template it belongs to.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "base/code_page.h"
#include "base/descriptor.h"
#include "base/result.h"

namespace kev {

struct ClockTime {
  int Hour = 0;
  int Minute = 0;
  int Second = 0;
};

// The copy of this run. There is at most one at a time, named after the moment of the last save or test run.
// It is held, so that another run which saves in the same second names its own after the next one.
class SampleCopy {
 public:
  // Deletes the copy made before and makes a new one, if `samplePath` is a .kex or .ked file. Its
  // first line names `templatePath`; lines of the source that name a template are left out. Tells why
  // a copy cannot be made; for a file of another kind, or none, there is none to make.
  std::optional<FileFailure> Renew(const std::string& tempFolder, const ClockTime& now,
                                   const std::string& samplePath, const std::string& templatePath);
  void Delete();

  // Path without an extension; empty before the first save.
  const std::string& SampleCopyBase() const { return base_; }

 private:
  // 0, or the system's error number; EWOULDBLOCK where another run has a copy of that name.
  int Begin(const std::string& target);

  std::string base_;
  std::string file_;  // empty while there is none
  Descriptor hold_;
};

// Whether a line of sample data, without the blanks around it, names a template.
bool NamesTemplate(std::string_view line);

}  // namespace kev
