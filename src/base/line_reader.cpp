// SPDX-License-Identifier: MIT
#include "base/line_reader.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

#include "base/reasons.h"

namespace kev {
namespace {

constexpr std::size_t kPiece = 256UL * 1024;

ssize_t ReadSome(int file, char* to, std::size_t room) {
  for (;;) {
    const ssize_t got = ::read(file, to, room);
    if (got >= 0 || errno != EINTR) return got;
  }
}

}  // namespace

LineReader::LineReader(Descriptor file, std::string path, std::uint64_t size, Watch watch)
    : file_(std::move(file)),
      path_(std::move(path)),
      watch_(std::move(watch)),
      size_(size),
      buffer_(kPiece) {}

Result<LineReader> LineReader::Open(const std::string& path, Watch watch) {
  Descriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
  if (!file) return FailureOfSystem(path, errno);
  struct stat status {};
  if (::fstat(file.Number(), &status) != 0) return FailureOfSystem(path, errno);
  if (S_ISDIR(status.st_mode)) return FailureOfSystem(path, EISDIR);
  if (!S_ISREG(status.st_mode)) return FileFailure{path, kReasonNotRegularFile};
  return LineReader(std::move(file), path, static_cast<std::uint64_t>(status.st_size), std::move(watch));
}

const char* LineReader::FindEnd(std::size_t from) const {
  return static_cast<const char*>(std::memchr(buffer_.data() + from, '\n', end_ - from));
}

bool LineReader::Next() {
  if (stopped_ || failure_) return false;
  cut_ = false;
  std::size_t searched = begin_;
  for (;;) {
    if (const char* found = FindEnd(searched)) {
      const auto end = static_cast<std::size_t>(found - buffer_.data());
      return TakeUpTo(end, end + 1);
    }
    if (end_ - begin_ > kLongestLine) return CutLine();
    const std::size_t held = end_ - begin_;
    if (!Fill()) return TakeLast();
    searched = begin_ + held;
  }
}

// Reads one more piece behind what is held. False at the end of the file, and when nothing more is to be
// read.
bool LineReader::Fill() {
  if (begin_ > 0) {
    std::memmove(buffer_.data(), buffer_.data() + begin_, end_ - begin_);
    end_ -= begin_;
    begin_ = 0;
  }
  if (buffer_.size() - end_ < kPiece / 2) buffer_.resize(buffer_.size() * 2);
  const ssize_t got = ReadSome(file_.Number(), buffer_.data() + end_, buffer_.size() - end_);
  if (got < 0) failure_ = FailureOfSystem(path_, errno);
  if (got <= 0) return false;
  end_ += static_cast<std::size_t>(got);
  done_ += static_cast<std::uint64_t>(got);
  stopped_ = watch_ && !watch_(done_, size_);
  return !stopped_;
}

bool LineReader::TakeUpTo(std::size_t end, std::size_t next) {
  line_ = {buffer_.data() + begin_, end - begin_};
  if (line_.ends_with('\r')) line_.remove_suffix(1);
  if (line_.size() > kLongestLine) {
    cut_ = true;
    line_ = line_.substr(0, kKeptOfCutLine);
  }
  begin_ = next;
  ++number_;
  return true;
}

bool LineReader::TakeLast() {
  if (stopped_ || failure_ || begin_ == end_) return false;
  line_ = {buffer_.data() + begin_, end_ - begin_};
  begin_ = end_;
  ++number_;
  return true;
}

// The rest of the line is read and forgotten. Its beginning keeps its place in front of the buffer.
bool LineReader::CutLine() {
  cut_ = true;
  for (;;) {
    end_ = begin_ + kKeptOfCutLine;
    if (!Fill()) break;
    const char* found = FindEnd(begin_ + kKeptOfCutLine);
    if (found == nullptr) continue;
    line_ = {buffer_.data() + begin_, kKeptOfCutLine};
    begin_ = static_cast<std::size_t>(found - buffer_.data()) + 1;
    ++number_;
    return true;
  }
  return TakeLast();
}

}  // namespace kev
