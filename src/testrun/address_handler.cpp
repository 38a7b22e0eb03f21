// SPDX-License-Identifier: MIT
#include "testrun/address_handler.h"

#include <algorithm>
#include <set>

#include "base/code_page.h"
#include "base/files.h"
#include "base/text.h"

namespace kev {
namespace {

using Words = std::vector<std::string>;

constexpr std::string_view kTypePrefix = "x-scheme-handler/";
constexpr std::string_view kEntryGroup = "Desktop Entry";
constexpr std::string_view kAddressCodes = "uUfF";

Words Parts(std::string_view text, char separator) {
  Words parts;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find(separator), text.size());
    if (end > 0) parts.emplace_back(Trim(text.substr(0, end)));
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return parts;
}

// The value of a key in a group; empty where it is not there.
std::string ValueIn(std::string_view bytes, std::string_view group, std::string_view key) {
  bool inside = false;
  while (!bytes.empty()) {
    const std::string_view line = Trim(TakeLine(bytes));
    if (line.starts_with('[')) inside = line.substr(1) == std::string(group) + ']';
    const std::size_t sign = line.find('=');
    if (!inside || line.starts_with('#') || sign == std::string_view::npos) continue;
    if (Trim(line.substr(0, sign)) == key) return std::string(Trim(line.substr(sign + 1)));
  }
  return {};
}

std::string TextOf(const std::string& path) {
  const Result<std::string> bytes = ReadWholeFile(path);
  return bytes ? *bytes : std::string();
}

// The lists of the user's and the system's choices.
Words ChoiceLists(const DesktopSettings& settings) {
  Words lists;
  const auto add = [&](const std::string& folder) {
    for (const std::string& desktop : settings.Desktops)
      lists.push_back(TextOf(folder + "/" + desktop + "-mimeapps.list"));
    lists.push_back(TextOf(folder + "/mimeapps.list"));
  };
  for (const std::string& folder : settings.ConfigFolders)
    add(folder);
  for (const std::string& folder : settings.DataFolders)
    add(folder + "/applications");
  return lists;
}

// The names of the entries to be tried, the best one first.
Words Candidates(const DesktopSettings& settings, const std::string& type) {
  const Words lists = ChoiceLists(settings);
  Words names;
  std::set<std::string> removed;
  const auto take = [&](const std::string& value) {
    for (std::string& name : Parts(value, ';'))
      if (!removed.contains(name)) names.push_back(std::move(name));
  };
  for (const std::string& list : lists)
    take(ValueIn(list, "Default Applications", type));
  for (const std::string& list : lists) {
    take(ValueIn(list, "Added Associations", type));
    for (std::string& name : Parts(ValueIn(list, "Removed Associations", type), ';'))
      removed.insert(std::move(name));
  }
  for (const std::string& folder : settings.DataFolders)
    take(ValueIn(TextOf(folder + "/applications/mimeinfo.cache"), "MIME Cache", type));
  return names;
}

// "kde-viewer.desktop" may also stand for "kde/viewer.desktop".
std::string EntryText(const DesktopSettings& settings, const std::string& name) {
  for (const std::string& folder : settings.DataFolders) {
    std::string path = name;
    while (true) {
      if (const std::string whole = folder + "/applications/" + path; FileExists(whole)) return TextOf(whole);
      const std::size_t dash = path.find('-');
      if (dash == std::string::npos) break;
      path[dash] = '/';
    }
  }
  return {};
}

std::string Unescaped(std::string_view value) {
  std::string text;
  for (std::size_t i = 0; i < value.size(); ++i) {
    if (value[i] != '\\' || i + 1 == value.size()) {
      text += value[i];
      continue;
    }
    const char code = value[++i];
    constexpr std::string_view kCodes = "sntr";
    constexpr std::string_view kMeanings = " \n\t\r";
    const std::size_t known = kCodes.find(code);
    text += known == std::string_view::npos ? code : kMeanings[known];
  }
  return text;
}

// Takes one word off a command line that quotes as entries do.
std::string TakeWord(std::string_view& rest) {
  std::string word;
  char quote = '\0';
  while (!rest.empty() && (quote != '\0' || rest.front() != kBlank)) {
    const char character = rest.front();
    rest.remove_prefix(1);
    if (quote == '\0' && (character == '"' || character == '\'')) {
      quote = character;
    } else if (character == quote) {
      quote = '\0';
    } else if (character == '\\' && quote != '\'' && !rest.empty()) {
      word += rest.front();
      rest.remove_prefix(1);
    } else {
      word += character;
    }
  }
  rest = TrimLeft(rest);
  return word;
}

// The word with its codes filled in; nothing for one that held only codes without a meaning here.
std::optional<std::string> Filled(std::string_view word, std::string_view address, bool& hasAddress) {
  std::string filled;
  for (std::size_t i = 0; i < word.size(); ++i) {
    if (word[i] != '%' || i + 1 == word.size()) {
      filled += word[i];
      continue;
    }
    const char code = word[++i];
    if (code == '%') filled += '%';
    if (kAddressCodes.find(code) == std::string_view::npos) continue;
    filled += address;
    hasAddress = true;
  }
  return filled.empty() && !word.empty() ? std::nullopt : std::optional(filled);
}

// The best program for the type whose entry suits.
std::optional<ProgramStart> HandlerOfType(const std::string& type, std::string_view argument,
                                          const DesktopSettings& settings,
                                          const std::function<bool(const std::string&)>& suits) {
  for (const std::string& name : Candidates(settings, type)) {
    const std::string entry = EntryText(settings, name);
    if (ValueIn(entry, kEntryGroup, "Hidden") == "true" || !suits(entry)) continue;
    if (auto start = StartOfExec(Unescaped(ValueIn(entry, kEntryGroup, "Exec")), argument)) return start;
  }
  return std::nullopt;
}

}  // namespace

DesktopSettings DesktopSettingsOf(
    const std::function<std::optional<std::string>(std::string_view)>& variables) {
  const auto value = [&](std::string_view name, const std::string& otherwise) {
    const std::string set = variables(name).value_or("");
    return set.empty() ? otherwise : set;
  };
  const std::string home = value("HOME", "");
  DesktopSettings settings;
  settings.ConfigFolders =
      Parts(value("XDG_CONFIG_HOME", home + "/.config") + ":" + value("XDG_CONFIG_DIRS", "/etc/xdg"), ':');
  settings.DataFolders = Parts(value("XDG_DATA_HOME", home + "/.local/share") + ":" +
                                   value("XDG_DATA_DIRS", "/usr/local/share:/usr/share"),
                               ':');
  settings.Desktops = Parts(CodePage::Default().Lower(value("XDG_CURRENT_DESKTOP", "")), ':');
  return settings;
}

std::optional<ProgramStart> StartOfExec(std::string_view exec, std::string_view address) {
  std::string_view rest = Trim(exec);
  ProgramStart start{TakeWord(rest), {}};
  if (start.Program.empty()) return std::nullopt;
  bool hasAddress = false;
  while (!rest.empty()) {
    if (std::optional<std::string> word = Filled(TakeWord(rest), address, hasAddress))
      start.Arguments.push_back(std::move(*word));
  }
  if (!hasAddress) start.Arguments.emplace_back(address);
  return start;
}

std::optional<ProgramStart> HandlerOf(std::string_view address, const DesktopSettings& settings) {
  const std::size_t colon = address.find(':');
  if (colon == std::string_view::npos || colon == 0) return std::nullopt;
  return HandlerOfType(std::string(kTypePrefix) + CodePage::Default().Lower(address.substr(0, colon)),
                       address, settings, [](const std::string&) { return true; });
}

std::optional<ProgramStart> TextHandlerOf(std::string_view path, const DesktopSettings& settings) {
  return HandlerOfType("text/plain", path, settings, [](const std::string& entry) {
    return ValueIn(entry, kEntryGroup, "Terminal") != "true";
  });
}

}  // namespace kev
