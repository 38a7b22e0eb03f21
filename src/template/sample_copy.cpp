// SPDX-License-Identifier: MIT
#include "template/sample_copy.h"

#include <fcntl.h>

#include <algorithm>
#include <cerrno>

#include "base/descriptor.h"
#include "base/files.h"
#include "base/line_reader.h"
#include "base/text.h"

namespace kev {
namespace {

constexpr std::string_view kTemplateKey = "TEMPLATE=";
// What is collected before it is written.
constexpr std::size_t kPiece = 256UL * 1024;

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

std::optional<FileFailure> WriteCopy(const std::string& samplePath, const std::string& target,
                                     const std::string& templatePath) {
  Result<LineReader> lines = LineReader::Open(samplePath);
  if (!lines) return lines.Error();
  Descriptor copy(::open(target.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666));
  if (!copy) return FailureOfSystem(target, errno);
  int error = CopyLines(*lines, copy, std::string(kTemplateKey) + templatePath + "\r\n");
  if (lines->Failure()) return lines->Failure();
  if (error == EFBIG) return FailureOfSystem(samplePath, error);
  if (copy.Close() != 0 && error == 0) error = errno;
  return error == 0 ? std::nullopt : std::optional(FailureOfSystem(target, error));
}

}  // namespace

bool NamesTemplate(std::string_view line) {
  if (line.empty() || (line.front() != 'T' && line.front() != 't')) return false;
  return CodePage::Default().EqualsIgnoringCase(line.substr(0, kTemplateKey.size()), kTemplateKey);
}

void SampleCopy::Delete() const {
  if (base_.empty()) return;
  DeleteFileIfThere(base_ + ".kex");
  DeleteFileIfThere(base_ + ".ked");
}

std::optional<FileFailure> SampleCopy::Renew(const std::string& tempFolder, const ClockTime& now,
                                             const std::string& samplePath, const std::string& templatePath) {
  Delete();
  base_ = JoinPath(tempFolder, "\\Sampledata" + std::to_string(now.Hour) + std::to_string(now.Minute) +
                                   std::to_string(now.Second));
  const std::string ending = CodePage::Default().Upper(
      samplePath.substr(samplePath.size() - std::min<std::size_t>(samplePath.size(), 4)));
  if (ending != ".KEX" && ending != ".KED") return std::nullopt;
  const std::string target = base_ + CodePage::Default().Lower(ending);
  std::optional<FileFailure> failure = WriteCopy(samplePath, target, templatePath);
  // Half a copy would look like data that ends early.
  if (failure) DeleteFileIfThere(target);
  return failure;
}

}  // namespace kev
