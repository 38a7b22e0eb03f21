// SPDX-License-Identifier: MIT
// The lines of a file one by one, in bounded memory however large the file is. A line ends at LF, one CR
// before it is dropped, and a last line needs no end, as for SplitLines.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/descriptor.h"
#include "base/result.h"

namespace kev {

class LineReader {
 public:
  // Bytes. Of a longer line only the beginning is kept.
  static constexpr std::size_t kLongestLine = 8UL * 1024 * 1024;
  static constexpr std::size_t kKeptOfCutLine = 256;

  // Called after each piece of the file with the bytes read so far and those of the whole file; false ends
  // the reading.
  using Watch = std::function<bool(std::uint64_t done, std::uint64_t size)>;

  // Regular files only: a pipe or a device would keep the program waiting. `path` is native.
  static Result<LineReader> Open(const std::string& path, Watch watch = {});

  // False behind the last line, and when the reading was stopped or failed.
  bool Next();
  // Until the next call of Next.
  std::string_view Line() const { return line_; }
  std::size_t Number() const { return number_; }  // from 1
  // Line() is but the beginning of a line that is too long.
  bool Cut() const { return cut_; }

  bool Stopped() const { return stopped_; }
  const std::optional<FileFailure>& Failure() const { return failure_; }

 private:
  LineReader(Descriptor file, std::string path, std::uint64_t size, Watch watch);

  bool Fill();
  bool TakeUpTo(std::size_t end, std::size_t next);
  bool TakeLast();
  bool CutLine();
  const char* FindEnd(std::size_t from) const;

  Descriptor file_;
  std::string path_;
  Watch watch_;
  std::uint64_t size_ = 0;
  std::uint64_t done_ = 0;
  // What was read and is not yet given stands from begin_ to end_.
  std::vector<char> buffer_;
  std::size_t begin_ = 0;
  std::size_t end_ = 0;
  std::string_view line_;
  std::size_t number_ = 0;
  bool cut_ = false;
  bool stopped_ = false;
  std::optional<FileFailure> failure_;
};

}  // namespace kev
