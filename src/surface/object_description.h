// SPDX-License-Identifier: MIT
// What a page object is called, what kind of thing it is and where it lies, for those who do not see the
// page: screen readers, and whoever walks the objects by keyboard.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "surface/page_work.h"

namespace kev {

enum class PageRole : std::uint8_t { Text, TextField, Picture, Shape, Chart, Code, Command, Band, BandEnd };

struct ObjectDescription {
  PageRole Role = PageRole::Shape;
  int KindText = 0;  // number of the word for the kind
  std::string
      Content;  // what tells it from others of its kind, in the code page of its CharSet; may be empty
  std::string CharSet;
  CanvasArea Area;  // canvas units; bands end with the page
  bool Selected = false;
};

ObjectDescription DescribeObject(const PageWork& work, int row);

// The rows that can be selected as the page is read: from top to bottom, then from left to right. Rows that
// the filter hides are not among them.
std::vector<int> ObjectsInReadingOrder(const PageWork& work);

// The object behind the current one (`step` 1) or before it (-1), ends of subsections left out. Nothing is
// current: the first or the last. 0 where there is none.
int NeighbourInReadingOrder(const PageWork& work, int step);

// A place of the object that the pointer could have been let go at, so that what is inserted next has one:
// the middle of an object, the top of a subsection's body.
CanvasPoint PointOnObject(const PageWork& work, int row);

}  // namespace kev
