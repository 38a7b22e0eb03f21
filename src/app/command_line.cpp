// SPDX-License-Identifier: MIT
#include "app/command_line.h"

#include "base/code_page.h"
#include "base/files.h"
#include "base/text.h"

namespace kev {
namespace {

constexpr std::string_view kLinkPrefix = "EDITKEVTEMPLATE:";
constexpr std::string_view kFilePrefix = "FILE://";

std::string Joined(std::span<const std::string> arguments) {
  std::string line;
  for (const std::string& argument : arguments)
    line.append(line.empty() ? "" : " ").append(argument);
  return line;
}

bool NamesSomething(const std::string& path) {
  return FileExists(path) || FolderExists(path);
}

// `capitals` in any case.
bool StartsWith(std::string_view text, std::string_view capitals) {
  return CodePage::Default().Upper(text.substr(0, capitals.size())) == capitals;
}

bool IsLink(std::string_view text) {
  return StartsWith(text, kLinkPrefix);
}

int HexDigit(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return -1;
}

// The bytes that stand behind the escapes; what is no escape stays.
std::string DecodeEscapes(std::string_view text) {
  std::string decoded;
  for (std::size_t at = 0; at < text.size(); ++at) {
    const int high = at + 2 < text.size() && text[at] == '%' ? HexDigit(text[at + 1]) : -1;
    const int low = high < 0 ? -1 : HexDigit(text[at + 2]);
    if (low < 0) {
      decoded += text[at];
    } else {
      decoded += static_cast<char>(high * 16 + low);
      at += 2;
    }
  }
  return decoded;
}

std::string BlanksForEscapes(std::string_view text) {
  constexpr std::string_view kEscape = "%20";
  std::string result(text);
  for (std::size_t at = result.find(kEscape); at != std::string::npos; at = result.find(kEscape, at + 1))
    result.replace(at, kEscape.size(), 1, kBlank);
  return result;
}

// Without "file://" and this machine's name.
std::string_view PathOfAddress(std::string_view address) {
  constexpr std::string_view kThisMachine = "LOCALHOST/";
  address.remove_prefix(kFilePrefix.size());
  if (StartsWith(address, kThisMachine)) address.remove_prefix(kThisMachine.size() - 1);
  return address;
}

// A link may carry an address instead of a path.
std::string PathOfLink(std::string_view text) {
  std::string path = BlanksForEscapes(text);
  if (FileExists(path)) return path;
  const bool address = StartsWith(text, kFilePrefix);
  std::string decoded = DecodeEscapes(address ? PathOfAddress(text) : text);
  // A file name can't hold the character 0; what follows it would silently be cut off.
  if (decoded.find('\0') != std::string::npos) return path;
  return address || FileExists(decoded) ? decoded : path;
}

}  // namespace

CommandLineParts ParseCommandLine(std::span<const std::string> arguments) {
  CommandLineParts parts;
  if (arguments.size() == 1) {
    parts.Help = arguments.front() == "--help";
    parts.Version = arguments.front() == "--version";
    if (parts.Help || parts.Version) return parts;
  }
  const std::string line = Joined(arguments);
  parts.CommandLine = std::string(Trim(line));
  if (NamesSomething(line)) {
    // Blanks at its ends belong to its name.
    parts.CommandLine = line;
    return parts;
  }

  const std::string padded = kBlank + line;
  const std::size_t start = padded.rfind(" /");
  if (start == std::string::npos) return parts;
  std::string_view tail = Trim(std::string_view(padded).substr(start + 2));
  const std::string before(Trim(std::string_view(padded).substr(0, start)));
  const bool closed = tail.ends_with('/');
  if (closed) tail.remove_suffix(1);
  if (tail.find('/') != std::string_view::npos) return parts;
  if (!closed && (before.empty() || !FindFile(ResolveTemplatePath(before), {}))) return parts;
  parts.CommandLine = before;
  parts.CommandOptions = tail;
  return parts;
}

std::string ResolveTemplatePath(std::string_view commandLine) {
  std::string path(commandLine);
  if (NamesSomething(path) && !IsLink(path)) return AbsolutePath(path);
  path = Trim(commandLine);
  if (IsLink(path)) path = PathOfLink(Trim(std::string_view(path).substr(kLinkPrefix.size())));
  return path.empty() ? path : AbsolutePath(path);
}

std::string_view HelpText() {
  return "Usage: kev [TEMPLATE] [/OPTIONS/]\n"
         "\n"
         "Opens the report template TEMPLATE (.kev), or a fresh one.\n"
         "\n"
         "  EDITKEVTEMPLATE:PATH  the same, as links write it; %20 stands for a blank\n"
         "  /!!#/                 templates are written with comments\n"
         "  /%%!/                 TEMPLATE is opened without checks\n"
         "  --help                prints this text and ends\n"
         "  --version             prints the version and ends\n";
}

std::string_view VersionText() {
  return "Kev Visual Editor " KEV_VERSION "\n";
}

}  // namespace kev
