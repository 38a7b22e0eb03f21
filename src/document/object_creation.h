// SPDX-License-Identifier: MIT
// Creating rows: what the template reader and the insertion tools both call.
#pragma once

#include <functional>
#include <optional>
#include <span>
#include <string>

#include "document/attribute_state.h"
#include "document/document.h"
#include "document/text_measurer.h"

namespace kev {

// What the page shows for a picture that a template names.
struct PictureAnswer {
  // Beginning with "\": a file of the designer's own folders ("\Cache\...", "\dashes.bmp"). Else a path as
  // written.
  std::string File;
  // The picture's own size in twips; nothing while there is no picture.
  std::optional<TextExtent> Size;
  // The path is an address, whose picture need not be there yet and may never be fetched.
  bool Remote = false;
};

inline constexpr std::string_view kMissingPicture = "\\dashes.bmp";

class PictureSource {
 public:
  virtual ~PictureSource() = default;
  // Called for each PICTURE that is created. A remote picture may be fetched behind the call.
  virtual PictureAnswer Look(std::string_view path) = 0;
};

// Knows no picture: all are missing.
class NoPictures final : public PictureSource {
 public:
  PictureAnswer Look(std::string_view) override { return {std::string(kMissingPicture), std::nullopt}; }
};

// Which of them a kind uses is told with each kind in the implementation. Texts stand as they were written.
struct NewObject {
  ObjectKind kind = ObjectKind::None;
  bool filled = false;  // BOX
  std::string sectionName;
  std::string title;
  std::string text;
  std::string xValue;
  std::string path;
  std::string y;  // empty means the current position
  std::string widthOrEndX;
  std::string height;
  std::string link;
  std::string format;
  std::string extra;    // LINE, ANYLINE: "1" for dashed; ENDOFSUBSECTION: the row of its bar
  std::string payload;  // TEXTBOX: fourth value of its directive
  std::span<const std::string> chartValues;
};

struct CreationContext {
  Document& document;
  AttributeState& attributes;
  LayoutCursor& cursor;
  const TextMeasurer& measurer;
  PictureSource& pictures;
  double zoomFactor = 1;
  // Told of each row as it is taken, for the status line.
  std::function<void(int row, ObjectKind kind)> onCreate;
};

// Takes the first free row and fills it; returns its index. A full table throws std::out_of_range.
int AddObject(CreationContext& context, const NewObject& object);

// Measures the text of a LABEL or COMMAND in its own font.
FontSpec FontOf(const ObjectRecord& record);
void MeasureText(ObjectRecord& record, const TextMeasurer& measurer);

// Gives the sides that a template leaves open the size of the picture, in its own proportion. Nothing changes
// for a picture without a size. Twips.
void FitPicture(ObjectRecord& record, const TextExtent& own);

// Whether the value of a template's item says yes; anything but "y", in any case, and "1" says no.
bool IsYes(std::string_view text);

// The specimen that stands for a bar code on the page.
std::string_view SampleForKind(int symbology);

// "[ITEMS:1]" gives "ITEMS", "[ITEMS]" gives "ITEMS]": the name that joins objects with their subsection.
std::string SectionNameOf(std::string_view headLine, const CodePage& page);

// What a bar says of itself: the bar of a section its name, any other its title and where it starts. To be
// stored anew whenever one of these changes.
std::string ContentOfBar(const ObjectRecord& bar);

}  // namespace kev
