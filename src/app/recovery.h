// SPDX-License-Identifier: MIT
// The recovery file of the open document: written at each change, deleted when the document is saved, read
// anew or closed. What a crash leaves behind is offered at the next start.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/result.h"
#include "document/document.h"
#include "template/sample_copy.h"

namespace kev {

// Length of "Recovered_", the time and "_", in front of the document's own name.
inline constexpr std::size_t kRecoveryPrefix = 17;

// "Recovered_090530_invoice.kev"; a name without the ending gets it.
std::string RecoveryName(const ClockTime& time, std::string_view documentTitle);
// The name of the document that a recovery file holds; everything behind the prefix.
std::string RecoveredTitle(std::string_view fileName);

// Holds a lock on its file for as long as the file is this run's, so that no other run offers or deletes it.
class Recovery {
 public:
  Recovery();
  ~Recovery();
  Recovery(const Recovery&) = delete;
  Recovery& operator=(const Recovery&) = delete;

  // Writes the document to a new file in the folder and then deletes the one before. On failure the old one
  // stays.
  std::optional<FileFailure> Write(const std::string& folder, const ClockTime& time,
                                   const std::string& documentTitle, const Document& document);
  // The file goes; there is none any more.
  void Delete();
  // The file stays where it is, for the next start.
  void LeaveBehind();
  const std::string& RecoveryFile() const { return file_; }

 private:
  std::string file_;
  int lock_ = -1;
};

// Names of the recovery files in the folder that no running program holds, sorted.
std::vector<std::string> RecoveryFilesIn(const std::string& folder);

}  // namespace kev
