// SPDX-License-Identifier: MIT
// The commands of ruler, column line and toolbar that change columns, and the objects that name them.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "surface/page_work.h"

namespace kev {

// The bytes of the template as it was last saved; empty for a document without a file. Throws where the file
// is there and cannot be read.
using SavedText = std::function<std::string()>;
std::string SavedTemplateText(const std::string& path);

// A question that is asked for one line of the saved template after the other, until the user says No, or Yes
// to all.
class LineQuestion {
 public:
  LineQuestion(PageServices& services, int textNumber) : services_(services), textNumber_(textNumber) {}
  // False when the command must not go on.
  bool Agreed();

 private:
  PageServices& services_;
  int textNumber_;
  bool yesToAll_ = false;
};

// `insertcolumnhere`: a column where the ruler was clicked. Without a snapshot; nothing when there is no free
// slot.
void InsertColumnHere(PageWork& work);

// `removecolumn`: objects that name the column stay where they are and are tied to none any more. A second
// end keeps the name. A slot that is free is passed over.
void RemoveColumn(PageWork& work, int slot);

// Sorts the columns by position, gives them consecutive numbers and tells of it. Asks before that for each
// line of the saved template and each column that it uses. Without a snapshot; the lines on the page are left
// to the next SyncColumnLines, unless an object has moved by it.
void OrganizeColumns(PageWork& work, const SavedText& savedText);

// Ties what is selected to the column of an item of the toolbar's list; bands are passed over.
void UseColumn(PageWork& work, std::string_view item);

}  // namespace kev
