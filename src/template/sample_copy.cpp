// SPDX-License-Identifier: MIT
#include "template/sample_copy.h"

#include "base/files.h"
#include "base/text.h"

namespace kev {
namespace {

constexpr std::string_view kTemplateKey = "TEMPLATE=";

}  // namespace

std::string SampleCopyText(std::string_view sample, std::string_view templatePath) {
  const CodePage& page = CodePage::Default();
  std::string text = std::string(kTemplateKey) + std::string(templatePath) + "\r\n";
  while (!sample.empty()) {
    const std::string_view line = TakeLine(sample);
    if (page.Upper(Trim(line).substr(0, kTemplateKey.size())) == kTemplateKey) continue;
    text += line;
    text += "\r\n";
  }
  return text;
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
  const Result<std::string> sample = ReadWholeFile(samplePath);
  if (!sample) return sample.Error();
  return WritePlainFile(base_ + CodePage::Default().Lower(ending), SampleCopyText(*sample, templatePath));
}

}  // namespace kev
