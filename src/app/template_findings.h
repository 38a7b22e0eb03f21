// SPDX-License-Identifier: MIT
// What a template at hand does not show, or will lose on saving, each with its line and column in the file.
// The designer lists it for the open template, `kevtool check` prints it.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "app/read_back.h"
#include "base/finding.h"
#include "document/text_measurer.h"
#include "template/reader.h"
#include "template/writer.h"

namespace kev {

// Of a document whose geometry is derived: positions past the page, objects that no body holds, and objects
// that lie in another subsection than the one they are written in. `places` is what its read gave.
std::vector<Finding> PageFindings(const Document& document, std::span<const SourcePlace> places);

// What a read leaves for telling about its file.
struct FoundInFile {
  std::vector<Finding> Findings;
  std::vector<SourcePlace> Places;
  std::string_view Bytes;  // of the file
};

// Everything about a template that has just been opened and painted: what its read noticed, PageFindings, and
// what a save would not bring back. The save is made in memory, from a copy.
std::vector<Finding> OpenedFindings(const Document& document, FoundInFile found,
                                    const TextMeasurer& measurer);

struct SavedCheck {
  std::vector<Finding> Findings;
  bool Same = true;        // the page comes back as it is
  bool Structure = false;  // see ReadBack
};

// What a save brings back of the open document `page`: the differences, and what there is to tell about the
// file itself, each with the place in the file and the row on the page. `bytes` are those of the file that
// was read; its geometry is derived here.
SavedCheck SavedFindings(const Document& page, ReadOutcome& file, std::string_view bytes);

struct CheckedTemplate {
  std::vector<Finding> Findings;  // in the order of the file
  std::string Written;            // what a save of the template would write, before it is packed
};

// A template that has just been read, laid out, painted once and saved in memory, as on opening and saving.
// `bytes` are what it was read from.
CheckedTemplate CheckRead(ReadOutcome& outcome, std::string_view bytes, const TextMeasurer& measurer);

// The first line on which a save differs from the file: the line of the file, or nothing if there is none.
std::vector<Finding> FirstDifference(std::string_view bytes, std::string_view written);

}  // namespace kev
