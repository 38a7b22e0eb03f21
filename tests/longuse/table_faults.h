// SPDX-License-Identifier: MIT
// What must hold of the tables after every command, whatever it was.
#pragma once

#include <string>
#include <vector>

#include "document/document.h"

namespace kev::test {

// One line for each rule that is broken; empty for a document that is as it should be.
std::vector<std::string> TableFaults(const Document& document);

// The rows as undo keeps them: without what a selection, a sort and painting
// leave in them.
std::vector<ObjectRecord> RowsToCompare(const Document& document);
// The first row in which two of these differ, with its fields; empty where they are equal.
std::string FirstRowDifference(const std::vector<ObjectRecord>& actual,
                               const std::vector<ObjectRecord>& expected);

}  // namespace kev::test
