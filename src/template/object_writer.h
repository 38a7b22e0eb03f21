// SPDX-License-Identifier: MIT
// The lines of stage one: one subsection bar, one object, one end bar at a time, in the order in which they
// are given.
#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "document/document.h"
#include "template/writer.h"
#include "template/writer_state.h"

namespace kev {

class ObjectWriter {
 public:
  ObjectWriter(const Document& document, const WriteOptions& options, WriteReport& report);

  void Line(std::string_view text);
  void Subsection(const ObjectRecord& bar, std::string_view section, std::string_view head);
  void Object(const ObjectRecord& record);
  void EndOfSubsection(const ObjectRecord& end);
  std::string Take() { return std::move(text_); }

 private:
  void FirstLabelLine();
  void Kind(const ObjectRecord& record);
  void TextBox(const ObjectRecord& record);
  void Picture(const ObjectRecord& record);
  void Qr(const ObjectRecord& record);
  void Circle(const ObjectRecord& record);
  void Chart(const ObjectRecord& record);
  void Barcode(const ObjectRecord& record);
  void HorizontalLine(const ObjectRecord& record);
  void AnyLine(const ObjectRecord& record);
  void Box(const ObjectRecord& record);
  void Command(const ObjectRecord& record);
  void Label(const ObjectRecord& record);
  void LabelAttributes(const ObjectRecord& record);
  std::string LabelPosition(const ObjectRecord& record);

  std::string Flags(const ObjectRecord& record);
  void VerticalStep(const ObjectRecord& record);
  void ColourStep(const ObjectRecord& record);
  std::string Position(std::string_view xValue);

  // A block with its delimiters. Where the document has its own delimiters, one without a position is kept a
  // command by an item "0", which changes nothing.
  void AddBlock(std::string_view items, bool hasPosition);
  // Only where comments are asked for.
  void AddComment(std::string_view marker);
  void BlockLine(std::string_view items, bool hasPosition);
  void BlockLineWithComment(std::string_view items, std::string_view comment);
  // A text between the block with its position and the block that ends it.
  void TextLine(std::string_view items, std::string_view text, std::string_view endItems);

  const Document& document_;
  const WriteOptions& options_;
  WriteReport& report_;
  WriterState state_;
  std::int32_t spacing_;
  bool firstObjectSeen_ = false;
  std::string text_;
};

}  // namespace kev
