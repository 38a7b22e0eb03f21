// SPDX-License-Identifier: MIT
// The lines of stage one: one subsection bar, one object, one end bar at a time, in the order in which they
// are given.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

#include "document/document.h"
#include "template/append.h"
#include "template/writer.h"
#include "template/writer_state.h"

namespace kev {

class ObjectWriter {
 public:
  ObjectWriter(const Document& document, const WriteOptions& options, WriteReport& report);

  void Line(std::string_view text);
  // `filledTo`: where the content ends in the body, as it is laid out.
  void Subsection(const ObjectRecord& bar, std::int32_t filledTo, std::string_view section,
                  std::string_view head);
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
  void LabelPosition(const ObjectRecord& record);

  // Items that a block begins with.
  void Flags(const ObjectRecord& record);
  // The line of a shape as far as its width.
  void BeginShape(const ObjectRecord& record);
  // Whole lines in front of an object's own.
  void VerticalStep(const ObjectRecord& record);
  void ColourStep(const ObjectRecord& record);
  std::string Position(std::string_view xValue);

  template <typename... Parts>
  void Add(const Parts&... parts) {
    Append(text_, parts...);
  }
  void BeginBlock();
  // Where the document has its own delimiters, a block without a position is kept a command by an item "0",
  // which changes nothing.
  void EndBlock(bool hasPosition);
  bool BlockIsEmpty() const { return text_.size() == blockBegin_; }
  void DropLastSeparator();
  // Only where comments are asked for.
  void AddComment(std::string_view marker);
  void BeginBlockLine();
  void EndBlockLine(bool hasPosition);
  template <typename... Parts>
  void BlockLine(bool hasPosition, const Parts&... parts) {
    BeginBlockLine();
    Add(parts...);
    EndBlockLine(hasPosition);
  }
  template <typename... Parts>
  void BlockLineWithComment(std::string_view comment, const Parts&... parts) {
    BeginBlockLine();
    Add(parts...);
    EndBlock(false);
    AddComment(comment);
    Line("");
  }
  // Behind the block with its position: the text, and the block that ends it.
  void EndTextLine(std::string_view margin, std::string_view text, std::string_view endItems);

  const Document& document_;
  const WriteOptions& options_;
  WriteReport& report_;
  WriterState state_;
  std::int32_t spacing_;
  bool firstObjectSeen_ = false;
  std::string text_;
  std::size_t blockBegin_ = 0;
};

}  // namespace kev
