// SPDX-License-Identifier: MIT
// The user's text editor, for templates and sample data.
#pragma once

#include <string>

#include "base/host.h"
#include "surface/page_work.h"

namespace kev {

// What a setting like "gedit --wait" starts. It is parted at its blanks, unless the whole of it is a file;
// the file to be opened becomes the last argument. An empty setting is "notepad".
ProgramStart EditorStart(const std::string& editor, const std::string& path);

// Does not wait. Where there is no such editor, the desktop's own program opens the file; failing that, a
// message names the editor. Both texts are native bytes.
void OpenInEditor(Host& host, const PageServices& services, const std::string& editor,
                  const std::string& path);

}  // namespace kev
