// SPDX-License-Identifier: MIT
// The symbologies of bar codes: their numbers in BarcodeKind, what each is called, and the specimen that
// stands for its code on the page.
#pragma once

#include <array>
#include <string_view>

namespace kev {

struct Symbology {
  int kind;
  std::string_view name;      // in the property sheet; empty where it has none
  std::string_view word;      // the item of a saved template; empty where it has none
  std::string_view specimen;  // empty where the object's own sample stays
};

inline constexpr auto kSymbologies = std::to_array<Symbology>({
    {1, "STANDARD 3-9", ";Bar", "ABCDEF"},
    {8, "EAN-8", ";Ean8", "12345678"},
    {13, "EAN-13", ";Ean13", "1234567890123"},
    {32, "", "", ""},
    {250, "2 OF 5 STANDARD", ";B2Of5Bar", "1234567890"},
    {251, "2 OF 5 INTERLEAVE", ";B2Of5Int", "1234567890"},
    {252, "2 OF 5 INDUSTRIAL", ";B2Of5Ind", "1234567890"},
    {1282, "128 B", ";B128B", "123456"},
    {1283, "128 C", ";B128C", "123456"},
    {12821, "UCC EAN 128", "", "(01)12345678"},
});

// Null for a number or a name that the table does not hold.
constexpr const Symbology* SymbologyOfKind(int kind) {
  for (const Symbology& row : kSymbologies)
    if (row.kind == kind) return &row;
  return nullptr;
}
constexpr const Symbology* SymbologyOfName(std::string_view name) {
  for (const Symbology& row : kSymbologies)
    if (!row.name.empty() && row.name == name) return &row;
  return nullptr;
}

}  // namespace kev
