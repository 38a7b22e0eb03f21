// SPDX-License-Identifier: MIT
// What the arguments of the process mean: a template, an option tail between "/" characters, or a link that
// calls the designer.
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace kev {

struct CommandLineParts {
  // The path, native bytes; may still carry the prefix of a link. Without blanks at its ends, unless they
  // belong to the name of a file that exists.
  std::string CommandLine;
  std::string CommandOptions;  // what stands between the first two "/" of the option tail
  bool Help = false;           // a lone --help
  bool Version = false;        // a lone --version

  // Comment lines in the templates that are written.
  bool WriterComments() const { return CommandOptions.find("!!#") != std::string::npos; }
  // The template of this command line is opened as it stands, without checks; one that is opened later is
  // not.
  bool SkipsChecks() const { return CommandOptions.find("%%!") != std::string::npos; }
};

// The arguments without the program's name. Looks at the file system: what names a file or folder is a path.
CommandLineParts ParseCommandLine(std::span<const std::string> arguments);

// The template that the remaining text means, absolute: the prefix of a link is cut, "%20" becomes a blank,
// and where no such file exists "file://" and "localhost" are cut and all escapes are decoded. Empty stays
// empty.
std::string ResolveTemplatePath(std::string_view commandLine);

// For --help and --version.
std::string_view HelpText();
std::string_view VersionText();

}  // namespace kev
