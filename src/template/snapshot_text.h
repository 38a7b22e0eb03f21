// SPDX-License-Identifier: MIT
// What a save would write, of a document that nobody may see change: the recovery file of each edit.
#pragma once

#include <string>

#include "document/document.h"
#include "template/writer.h"

namespace kev {

// The text that TemplateText gives.
std::string SnapshotText(const Document& document, const WriteOptions& options, WriteReport& report);

}  // namespace kev
