// SPDX-License-Identifier: MIT
// Writes a template. An attribute is written only where the next object differs from what the reader will
// have at that point. Stage one writes everything with marker lines; stage two regroups it into header,
// footer and data.
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
  // The symbologies that have no word in a template; each is shown once the file is written.
  std::vector<std::string> UnnamedSymbologies;
};

// Sets the sort keys, lays the subsections out and gives the text of the template.
std::string TemplateText(Document& document, const WriteOptions& options, WriteReport& report);

// Stage one goes to `path` + ".tmp", the result appears under `path` whole or not at all. After a failure the
// old file is unchanged and the first stage stays behind.
WriteReport WriteTemplate(const std::string& path, Document& document, const WriteOptions& options);

}  // namespace kev
