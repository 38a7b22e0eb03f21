// SPDX-License-Identifier: MIT
#include "template/sample_copy.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <utility>

#include "base/descriptor.h"
#include "base/files.h"
#include "base/line_reader.h"
#include "base/text.h"

namespace kev {
namespace {

constexpr std::string_view kTemplateKey = "TEMPLATE=";
// What is collected before it is written.
constexpr std::size_t kPiece = 256UL * 1024;
constexpr int kSecondsOfADay = 24 * 60 * 60;
// Names that other runs may have taken.
constexpr int kMostTries = 100;

// 0, or the system's error number. The source may be larger than the memory.
int CopyLines(LineReader& from, const Descriptor& to, std::string text) {
  while (from.Next()) {
    // A line cut short must not come into the copy as if it were whole.
    if (from.Cut()) return EFBIG;
    if (NamesTemplate(Trim(from.Line()))) continue;
    text.append(from.Line()).append("\r\n");
    if (text.size() < kPiece) continue;
    if (const int error = WriteAll(to.Number(), text)) return error;
    text.clear();
  }
  return WriteAll(to.Number(), text);
}

std::optional<FileFailure> WriteCopy(const std::string& samplePath, const Descriptor& copy,
                                     const std::string& target, const std::string& templatePath) {
  Result<LineReader> lines = LineReader::Open(samplePath);
  if (!lines) return lines.Error();
  const int error = CopyLines(*lines, copy, std::string(kTemplateKey) + templatePath + "\r\n");
  if (lines->Failure()) return lines->Failure();
  if (error == EFBIG) return FailureOfSystem(samplePath, error);
  return error == 0 ? std::nullopt : std::optional(FailureOfSystem(target, error));
}

std::string BaseOf(const std::string& tempFolder, const ClockTime& time) {
  return JoinPath(tempFolder, "\\Sampledata" + std::to_string(time.Hour) + std::to_string(time.Minute) +
                                  std::to_string(time.Second));
}

ClockTime NextSecond(ClockTime time) {
  const int all = (time.Hour * 3600 + time.Minute * 60 + time.Second + 1) % kSecondsOfADay;
  return {all / 3600, all / 60 % 60, all % 60};
}

}  // namespace

bool NamesTemplate(std::string_view line) {
  if (line.empty() || (line.front() != 'T' && line.front() != 't')) return false;
  return CodePage::Default().EqualsIgnoringCase(line.substr(0, kTemplateKey.size()), kTemplateKey);
}

void SampleCopy::Delete() {
  if (!file_.empty()) DeleteFileIfThere(file_);
  file_.clear();
  hold_.Close();
}

// Emptied only when it is held: until then it may be another's. One that an earlier run has left is free.
int SampleCopy::Begin(const std::string& target) {
  Descriptor file(::open(target.c_str(), O_RDWR | O_CREAT | O_NOFOLLOW | O_CLOEXEC | O_NONBLOCK, 0666));
  if (!file) return errno;
  if (::flock(file.Number(), LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) return errno;
  struct stat opened {};
  struct stat named {};
  if (::fstat(file.Number(), &opened) != 0 || ::ftruncate(file.Number(), 0) != 0) return errno;
  // Its holder may have deleted it before it was held here.
  if (::lstat(target.c_str(), &named) != 0 || opened.st_ino != named.st_ino) return EWOULDBLOCK;
  hold_ = std::move(file);
  return 0;
}

std::optional<FileFailure> SampleCopy::Renew(const std::string& tempFolder, const ClockTime& now,
                                             const std::string& samplePath, const std::string& templatePath) {
  Delete();
  base_ = BaseOf(tempFolder, now);
  const std::string ending = CodePage::Default().Lower(
      samplePath.substr(samplePath.size() - std::min<std::size_t>(samplePath.size(), 4)));
  if (ending != ".kex" && ending != ".ked") return std::nullopt;
  ClockTime time = now;
  int error = EWOULDBLOCK;
  for (int tries = 0; error == EWOULDBLOCK && tries < kMostTries; ++tries, time = NextSecond(time)) {
    base_ = BaseOf(tempFolder, time);
    file_ = base_ + ending;
    error = Begin(file_);
  }
  std::optional<FileFailure> failure = error == 0 ? WriteCopy(samplePath, hold_, file_, templatePath)
                                                  : FailureOfSystem(std::exchange(file_, {}), error);
  // Half a copy would look like data that ends early.
  if (failure) Delete();
  return failure;
}

}  // namespace kev
