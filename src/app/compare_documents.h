// SPDX-License-Identifier: MIT
// What is different between two documents: objects, settings and columns.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "document/document.h"

namespace kev {

struct FieldChange {
  std::string_view Field;  // of the record, a key of a chart, or "Kind"
  std::string Before;      // in the code page of the documents
  std::string After;
};

struct ObjectChange {
  int Before = 0;  // row in the first document; 0 for an object that was added
  int After = 0;   // row in the second; 0 for one that was removed
  // Of an object in both, never empty. One whose kind changed names nothing but its kind.
  std::vector<FieldChange> Fields;
};

struct SettingChange {
  Setting Id = {};
  std::string Before;  // what a file would say; empty where it says nothing
  std::string After;
};

struct ColumnChange {
  std::string Name;
  std::optional<double> Before, After;  // twips
};

struct DocumentChanges {
  std::vector<ObjectChange> Objects;  // in the order of the first document, then what was added
  std::vector<SettingChange> Settings;
  std::vector<ColumnChange> Columns;
  // For each row of the second document its partner in the first; 0 where there is none.
  std::vector<int> Partners;

  bool None() const { return Objects.empty() && Settings.empty() && Columns.empty(); }
};

// Whether an object that has neither place nor words of another one may still be its partner, if it is of the
// same kind in the same subsection: that fits where both ought to be the same document.
enum class Strangers { Pair, Leave };

// Both with their geometry derived. Rows are matched by what they are, what they say and where they stand,
// not by their index.
DocumentChanges CompareDocuments(const Document& first, const Document& second, Strangers strangers);

}  // namespace kev
