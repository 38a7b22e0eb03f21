// SPDX-License-Identifier: MIT
// Any text as the link of an object, as the address that calls the viewer, and as what the desktop knows
// about its scheme. Parts end at the character 1: the address, the list of the user's choices, the entry of
// the program, the setting of the editor.
#include "fuzz_support.h"
#include "testrun/address_handler.h"
#include "testrun/classify_link.h"
#include "testrun/editor.h"

namespace {

using namespace kev;
using fuzz::Require;
using fuzz::Scratch;

void CheckLink(std::string_view address) {
  std::string link(address);
  const LinkKind kind = ClassifyLink(link);
  std::string again = link;
  Require(ClassifyLink(again) == kind && again == link);
  // Where a backslash makes a path of it, a prefix may be missing.
  Require(kind == LinkKind::Local || HasAddressPrefix(link));
}

void CheckStart(const ProgramStart& start, const std::string& address) {
  Require(!start.Program.empty() && !start.Arguments.empty());
  bool hasAddress = false;
  for (const std::string& argument : start.Arguments)
    hasAddress |= argument.find(address) != std::string::npos;
  Require(hasAddress);
}

// What the desktop's variables say is taken apart at each colon. Some of them are not set.
void CheckVariables(std::string_view text) {
  const DesktopSettings settings =
      DesktopSettingsOf([text](std::string_view name) -> std::optional<std::string> {
        if ((name.size() + text.size()) % 3 == 0) return std::nullopt;
        return std::string(text);
      });
  for (const auto& list : {settings.ConfigFolders, settings.DataFolders, settings.Desktops}) {
    for (const std::string& item : list)
      Require(item.find(':') == std::string::npos);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::string_view rest = fuzz::TextOf(data, size);
  const std::string address(fuzz::TakePart(rest, '\x01'));
  CheckLink(address);

  const std::string_view choices = fuzz::TakePart(rest, '\x01');
  const std::string_view entry = fuzz::TakePart(rest, '\x01');
  std::filesystem::create_directory(Scratch().Path("applications"));
  static_cast<void>(Scratch().Made("mimeapps.list", choices));
  static_cast<void>(Scratch().Made("applications/mimeinfo.cache", choices));
  static_cast<void>(Scratch().Made("applications/a-viewer.desktop", entry));
  const DesktopSettings settings{{Scratch().Path()}, {Scratch().Path()}, {"own"}};
  CheckVariables(choices);
  const ProgramStart editor = EditorStart(std::string(rest), "/a b");
  Require(!editor.Program.empty() && editor.Arguments.back() == "/a b");
  if (address.empty()) return 0;
  if (const auto start = HandlerOf(address, settings)) CheckStart(*start, address);
  if (const auto start = TextHandlerOf(address, settings)) CheckStart(*start, address);
  if (const auto start = StartOfExec(entry, address)) CheckStart(*start, address);
  return 0;
}
