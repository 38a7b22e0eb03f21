// SPDX-License-Identifier: MIT
// Reads a template. The head keys are fetched one by one; the layout is read line by line by a scanner that
// parts literal text from command blocks, each of which changes the attribute state, moves the cursor or
// creates objects.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "base/finding.h"
#include "base/result.h"
#include "document/document.h"
#include "document/object_creation.h"

namespace kev {

// Told of how far a read has come. Calls come in ascending order, once for each line and each object.
class ReadProgress {
 public:
  virtual ~ReadProgress() = default;
  virtual void Begin(int lines) = 0;
  virtual void Line(int number) = 0;
  virtual void Object(int row, ObjectKind kind) = 0;
  virtual void End() = 0;
};

struct ReadServices {
  const TextMeasurer& Measurer;
  PictureSource& Pictures;
  std::string DefaultPaper = "A4";
  const CodePage* Page = &CodePage::Default();
  ReadProgress* Progress = nullptr;
};

// Where in its file a row comes from. A band stands in itself.
struct SourcePlace {
  std::uint32_t Line = 0;    // counted from 1; 0 for a row that no read has made
  std::uint32_t Column = 0;  // counted from 1: the block, or where a text begins
  int Bar = 0;               // the row of the subsection in which it is written; 0 in front of all of them
};

struct ReadOutcome {
  Document Read;
  // What the insertion tools go on with.
  AttributeState Attributes;
  std::vector<Finding> Findings;
  std::vector<SourcePlace> Places;  // by row
};

// The document as it stands after the read alone, without the geometry chain. A read never shows anything
// itself and runs as at a zoom of 100 %. A file that cannot be read, or that holds more than 100 columns, 200
// items in a line or 2001 rows, is a failure with its reason.
Result<ReadOutcome> ReadTemplate(const std::string& path, const ReadServices& services);
Result<ReadOutcome> ReadTemplateBytes(std::string_view bytes, const ReadServices& services);

// A line with those blocks disarmed that are no commands: their delimiters become the characters 1 and 2.
std::string PreprocessLine(std::string_view line, char open, char close, const CodePage& page);

}  // namespace kev
