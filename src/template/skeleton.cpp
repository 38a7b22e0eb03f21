// SPDX-License-Identifier: MIT
#include "template/skeleton.h"

#include "base/files.h"
#include "base/numbers.h"
#include "base/text.h"

namespace kev {

std::string SkeletonText(std::string_view spacing) {
  std::string_view step = Trim(spacing);
  if (NumericPrefix(step) == 0) step = "200";
  const std::string section = "  {Spacing=" + FormatNumber(2 * NumericPrefix(step)) + ";\\n}\r\n";
  std::string text = std::string(kGeneratedLine) + "\r\nKEXVER=4\r\nSPACING=";
  text += step;
  for (const char* name : {"\r\n[HEADER]\r\n", "[DATA]\r\n", "[FOOTER]\r\n"})
    text.append(name).append(section);
  return text;
}

std::optional<FileFailure> WriteSkeleton(const std::string& folder, std::string_view spacing) {
  return WritePlainFile(JoinPath(folder, kSkeletonFile), SkeletonText(spacing));
}

}  // namespace kev
