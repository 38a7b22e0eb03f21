// SPDX-License-Identifier: MIT
// Any lines as the arguments of the process.
#include <vector>

#include "app/command_line.h"
#include "base/text.h"
#include "fuzz_support.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace kev;
  using fuzz::Require;
  std::vector<std::string> arguments;
  for (std::string_view rest = fuzz::TextOf(data, size); !rest.empty();)
    arguments.emplace_back(fuzz::TakePart(rest, '\n'));
  const CommandLineParts parts = ParseCommandLine(arguments);
  Require(!(parts.Help && parts.Version));
  if (parts.Help || parts.Version) {
    const std::string_view printed = parts.Help ? HelpText() : VersionText();
    Require(printed.ends_with('\n') && arguments.size() == 1 && parts.CommandLine.empty());
  }
  Require(parts.CommandOptions.find('/') == std::string::npos);
  Require(parts.CommandLine.size() + parts.CommandOptions.size() <= size);
  const std::string path = ResolveTemplatePath(parts.CommandLine);
  Require(path.empty() || path.starts_with('/'));
  return 0;
}
