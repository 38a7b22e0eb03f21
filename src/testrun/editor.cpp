// SPDX-License-Identifier: MIT
#include "testrun/editor.h"

#include <algorithm>

#include "base/files.h"
#include "base/text.h"
#include "base/text_numbers.h"

namespace kev {
namespace {

constexpr std::string_view kUsualEditor = "notepad";

}  // namespace

ProgramStart EditorStart(const std::string& editor, const std::string& path) {
  std::string_view rest = Trim(editor);
  if (rest.empty()) rest = kUsualEditor;
  if (FileExists(std::string(rest))) return {std::string(rest), {path}};
  std::vector<std::string> words;
  while (!rest.empty()) {
    const std::size_t end = std::min(rest.find(kBlank), rest.size());
    words.emplace_back(rest.substr(0, end));
    rest = TrimLeft(rest.substr(end));
  }
  words.push_back(path);
  return {words.front(), {words.begin() + 1, words.end()}};
}

void OpenInEditor(Host& host, const PageServices& services, const std::string& editor,
                  const std::string& path) {
  const ProgramStart start = EditorStart(editor, path);
  if (host.StartProgram(start) || host.OpenWithDesktop(path)) return;
  host.ShowMessage({services.Text(kTextProgramTitle), services.Text(kTextProgramNotStarted) + " ",
                    start.Program, BoxIcon::Critical});
}

}  // namespace kev
