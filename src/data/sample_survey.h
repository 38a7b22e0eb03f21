// SPDX-License-Identifier: MIT
// What a file of sample data holds, found while it is checked.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "base/code_page.h"
#include "base/line_reader.h"
#include "data/sample_check.h"
#include "data/sample_records.h"

namespace kev {

// Of a file that is bad, what stands in front of the bad line.
struct SampleSurvey {
  SampleCheck Check;
  std::vector<RecordType> Types;  // of a .kex file
  std::size_t Records = 0;        // also those without a name and of types behind the 150th
  std::size_t Pages = 0;          // page marks
  std::size_t Variables = 0;      // of a .ked file
  std::size_t Lines = 0;
};

// Unlike CheckSampleFile, a file that is not there can't be read. `path` is native; reads in bounded memory
// and leaves no file open. `watch` may end it early.
SampleSurvey SurveySampleFile(const std::string& path, const CodePage& page, LineReader::Watch watch = {});

struct SampleVariables {
  std::vector<std::string> Names;  // with their "@", in the order of the file, also where one stands twice
  std::optional<FileFailure> Failure;
  bool TooMany = false;
};
// The variables of a good .ked file, at most `most` of them.
SampleVariables ReadSampleVariables(const std::string& path, std::size_t most);

}  // namespace kev
