// SPDX-License-Identifier: MIT
// The vertical structure: bands of 400 twips with a body below each, objects owned by the body they lie in.
#pragma once

#include <string_view>
#include <unordered_map>
#include <vector>

#include "document/document.h"
#include "document/sort_keys.h"

namespace kev {

// Space between the end of a body and the next bar.
inline constexpr int kBandGap = 200;

// Gives each object the subsection whose body it lies in, both ends included; the later row wins where bodies
// overlap. An object outside all bodies keeps its owner. Run after anything has moved.
void AssignObjects(Document& document);

// Lays the bands out one below another in the given order and moves the objects with them.
void NormaliseSubsections(Document& document, const SortedRows& sorted);

// The geometry chain: assign, sort, lay out. The result is in the order of before the bands moved.
SortedRows DeriveGeometry(Document& document);

// The bar of a row: by name, and where several share it the one whose body holds the row, else the first. 0
// when no subsection has the owner's name.
int OwnerOf(const Document& document, int row);

// The same for many rows of a document that stays as it is.
class OwnerIndex {
 public:
  explicit OwnerIndex(const Document& document);
  int OwnerOf(int row) const;

 private:
  const Document& document_;
  std::unordered_map<std::string_view, std::vector<int>> byName_;
  std::unordered_map<int, int> barOfEnd_;
};

}  // namespace kev
