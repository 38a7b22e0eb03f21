// SPDX-License-Identifier: MIT
// Hands a saved copy of the open template to the viewer, and shows the raw files in the user's editor. All
// paths are the system's own bytes.
#pragma once

#include <functional>
#include <string>

#include "base/host.h"
#include "surface/page_work.h"

namespace kev {

struct TestRunWork {
  Host& host;
  PageServices& services;
  std::string TempFolder;
  std::string DataFile;        // of the open document; empty where it names none
  bool WithoutChecks = false;  // the document was opened without the usual checks
  std::string DefaultEditor;
  // Writes the open document to a path and renews the copy of its sample data. Tells what went wrong itself,
  // and returns the path of the copy without its ending.
  std::function<std::string(const std::string& path)> Write;
};

// The same file for the viewer and for the editor.
std::string TestTemplatePath(const std::string& tempFolder);

// For reading. A folder can't be opened.
bool FileCanBeOpened(const std::string& path);

// Calls the viewer and goes on; what becomes of the call is not known. It is called also where the template
// could not be written.
void RunTest(const TestRunWork& work);
void ShowTemplateCode(const TestRunWork& work);
void ShowDataFile(const TestRunWork& work);

}  // namespace kev
