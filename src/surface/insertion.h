// SPDX-License-Identifier: MIT
// New objects at the place where the pointer was last let go, in the subsection under it, by a tool that
// waited for the click or from the menu.
#pragma once

#include <string>

#include "document/object_creation.h"
#include "surface/insertion_table.h"
#include "surface/last_used.h"
#include "surface/page_work.h"

namespace kev {

struct InsertionWork {
  PageWork& page;
  const LastUsed& last;
  PictureSource& pictures;
  Host& host;
  std::string SampleDataPath;  // native; empty where the document names none
};

// The bar in whose body the canvas place lies, edges included; 0 where there is none.
int SubsectionUnder(const PageWork& work, double y);

// Takes a snapshot, makes the object, shows it and selects it; gives its row. Outside all bodies a message
// says so and the result is 0; the snapshot stays. A full table throws std::out_of_range.
int Insert(InsertionWork& work, Insertion what);

// The same from the menu: a new chart opens its dialog, and the next variable goes into the current LABEL
// where there is one.
void InsertFromMenu(InsertionWork& work, Insertion what);

// Fills a blank row by its kind; place and owner are not touched.
void FillInserted(ObjectRecord& record, const InsertionRow& row, const InsertionWork& work);

// Asks for the file of the PICTURE in the row. Giving up leaves the stand-in, and a file that can't be used
// is refused with a message.
void ChoosePicture(InsertionWork& work, int row);

// The current LABEL gets the next variable of its subsection. With none left nothing happens.
void PutNextVariable(InsertionWork& work, int row, bool withSnapshot);

}  // namespace kev
