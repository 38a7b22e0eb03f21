// SPDX-License-Identifier: MIT
// Writes a template as a chain of changes: the writer follows what a reader would know so far, and says nothing
// twice. The text is first made in the order of the page, with marker lines, and then regrouped by section.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "base/finding.h"
#include "base/result.h"
#include "document/document.h"

namespace kev {

struct WriteOptions {
  bool Comments = false;  // "!!#" in the command line's options
};

struct WriteReport {
  std::optional<FileFailure> Failure;
  // Why there is no copy of the sample data; a save does without, the test run shows it.
  std::optional<FileFailure> SampleFailure;
  // The symbologies that have no word in a template, each once, to be shown when the file is written.
  std::vector<std::string> UnnamedSymbologies;
};

// Sets the sort keys, lays the subsections out and gives the text of the template.
std::string TemplateText(Document& document, const WriteOptions& options, WriteReport& report);

// Stage one goes to `path` + ".tmp", the result appears under `path` whole or not at all. After a failure the
// old file is unchanged and the first stage stays behind.
WriteReport WriteTemplate(const std::string& path, Document& document, const WriteOptions& options);

}  // namespace kev
