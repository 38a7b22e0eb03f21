// SPDX-License-Identifier: MIT
// The objects of a document in the form in which two documents are compared: only what an object of a kind
// shows or does, and forms that mean the same as one text.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "document/document.h"

namespace kev {

struct ComparedValue {
  std::string_view Field;  // of the record, or a key of a chart
  std::string Text;
};

struct ComparedObject {
  int Row = 0;
  ObjectKind Kind = ObjectKind::None;
  std::string Owner;
  std::vector<ComparedValue> Values;  // objects of one kind have the same fields in the same order

  // Empty for a field that the kind does not show.
  std::string_view operator[](std::string_view field) const;
  // What a reader knows it by: its title, its text or its picture; empty for a shape.
  std::string_view Words() const;
};

// The bar above the header and end bars are not compared: no line of a file makes them.
bool IsCompared(const ObjectRecord& record, const CodePage& page);

// Whether they have the same owner and the same values. Makes no texts where records are equal anyway, as
// most of a saved document are.
bool SameObjects(const ObjectRecord& a, const ObjectRecord& b, const CodePage& page);

ComparedObject ObjectOf(const ObjectRecord& record, int row, const CodePage& page);

}  // namespace kev
