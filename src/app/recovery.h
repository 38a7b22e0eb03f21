// SPDX-License-Identifier: MIT
// The recovery file of the open document: written at each change, deleted when the document is saved, read
// anew or closed. What a crash leaves behind is offered at the next start.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/descriptor.h"
#include "base/result.h"
#include "document/document.h"
#include "template/sample_copy.h"
#include "template/writer.h"

namespace kev {

// In TempFolder.
inline constexpr std::string_view kRecoveryFolder = "\\Cache";

// Length of "Recovered_", the time and "_", in front of the document's own name.
inline constexpr std::size_t kRecoveryPrefix = 17;

// "Recovered_090530_invoice.kev"; a name without the ending gets it. A name too long for a file loses what is
// in front of its ending.
std::string RecoveryName(const ClockTime& time, std::string_view documentTitle);
// The name of the document that a recovery file holds; everything behind the prefix.
std::string RecoveredTitle(std::string_view fileName);

// Holds its file for as long as the file is this run's, so that no other run offers or deletes it. Where the
// process ends without a word, the file stays.
class Recovery {
 public:
  // Writes the document to a new file in the folder and then deletes the one before. On failure the old one
  // stays. The document's rows stay as they are. A name in use that is not ours gives the next second.
  std::optional<FileFailure> Write(const std::string& folder, const ClockTime& time,
                                   const std::string& documentTitle, const Document& document,
                                   const WriteOptions& options = {});
  // Takes over what an earlier run left; false where another run holds it or it is gone.
  bool TakeOver(const std::string& file);
  // The file goes; there is none any more.
  void Delete();
  // The file stays where it is, for the next start.
  void LeaveBehind();
  // Behind a save under this path, which may be the very file.
  void DeleteUnlessSavedTo(const std::string& path);
  // Empty when there is none.
  const std::string& RecoveryFile() const { return file_; }

 private:
  std::optional<FileFailure> Name(NewHeldFile& written, const std::string& folder, const ClockTime& time,
                                  const std::string& documentTitle);

  std::string file_;
  Descriptor hold_;
};

// Names of the recovery files in the folder that no running program holds, sorted.
std::vector<std::string> RecoveryFilesIn(const std::string& folder);

}  // namespace kev
