// SPDX-License-Identifier: MIT
// The property sheet of what is selected, as a value: the grid shows it and decides nothing.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "document/document.h"
#include "properties/property_row.h"
#include "properties/sheet_work.h"

namespace kev {

enum class SheetSubject : std::uint8_t { Document, Object, Group };

struct Sheet {
  SheetSubject Subject = SheetSubject::Document;
  int Title = 0;  // number of a text; for a group the count of its members stands behind it
  int MemberCount = 0;
  // What it was built for. An edit for anything else is not stored.
  int Object = 0;
  ObjectKind Kind = ObjectKind::None;
  SheetPlace Place = SheetPlace::Docked;
  // A sheet that is left standing for something that has none can't be edited.
  bool Enabled = true;
  std::vector<PropertyRow> Rows;  // the grid counts them from 1

  bool operator==(const Sheet&) const = default;
};

Sheet ShowDocumentSheet(const Document& document, SheetPlace place);
// Nothing but a title.
Sheet ShowMultiSelectionSheet(const Document& document, SheetPlace place);
// Nothing for what has no sheet: SECTION, ENDOFSUBSECTION and free rows.
std::optional<Sheet> ShowSheetFor(const Document& document, int object, SheetPlace place);

// The sheet of what is selected now. A group with a current object shows that object's, one without an empty
// sheet; what has no sheet leaves `before` standing, disabled.
Sheet SheetOfSelection(const Document& document, bool multiSelected, SheetPlace place, const Sheet& before);

// In the words of the language.
std::string SheetTitle(const Sheet& sheet, const PageServices& services);
// What the line under the grid says when this row becomes current; nothing where the line stays as it is.
std::optional<std::string> DescriptionOf(const Sheet& sheet, int row, const PageServices& services);

}  // namespace kev
