// SPDX-License-Identifier: MIT
#include "template/object_writer.h"

#include <algorithm>
#include <utility>

#include "base/numbers.h"
#include "base/text.h"
#include "chart/definition.h"
#include "document/colours.h"
#include "document/symbologies.h"
#include "template/line_text.h"
#include "template/writer_tables.h"

namespace kev {
namespace {

constexpr bool kPositioned = true;
constexpr bool kPlain = false;

std::string Number(std::int64_t value) {
  return std::to_string(value);
}

const CommentRow& CommentsOf(ObjectKind kind) {
  for (const CommentRow& row : kStepComments) {
    if (row.kind == kind) return row;
  }
  return kStepComments.back();
}

}  // namespace

ObjectWriter::ObjectWriter(const Document& document, const WriteOptions& options, WriteReport& report)
    : document_(document), options_(options), report_(report), spacing_(document.Settings.SpacingTwips()) {}

void ObjectWriter::Line(std::string_view text) {
  text_ += text;
  text_ += "\r\n";
}

void ObjectWriter::AddBlock(std::string_view items, bool hasPosition) {
  text_ += document_.Settings.OpenCharacter();
  text_ += items;
  if (!hasPosition && document_.Settings.HasOwnDelimiters()) text_ += items.empty() ? "0" : ";0";
  text_ += document_.Settings.CloseCharacter();
}

void ObjectWriter::AddComment(std::string_view marker) {
  if (!options_.Comments) return;
  text_ += kBlank;
  AddBlock(marker, kPlain);
}

void ObjectWriter::BlockLine(std::string_view items, bool hasPosition) {
  text_ += "  ";
  AddBlock(items, hasPosition);
  Line("");
}

void ObjectWriter::BlockLineWithComment(std::string_view items, std::string_view comment) {
  text_ += "  ";
  AddBlock(items, kPlain);
  AddComment(comment);
  Line("");
}

void ObjectWriter::TextLine(std::string_view items, std::string_view text, std::string_view endItems) {
  text_ += "  ";
  AddBlock(items, kPositioned);
  text_ += text;
  AddBlock(endItems, kPlain);
  Line("");
}

void ObjectWriter::Subsection(const ObjectRecord& bar, std::string_view section, std::string_view head) {
  Line("");
  Line("<" + std::string(section));
  Line(" " + std::string(head));
  Line("");
  state_.CursorY = 0;
  state_.SubsectionEnd = bar.EndsAt;
  state_.SubsectionFill = bar.SectionCursorY;
  state_.LastCommand.clear();
  if (bar.HeightGiven != 0) BlockLine("SubSectionHeight=" + Number(bar.EndsAt), kPlain);
  const std::string_view start = Trim(bar.StartY);
  if (!document_.Page->EqualsIgnoringCase(start, kCurrentYValue)) {
    BlockLine(NumericPrefix(start) == 0 ? std::string("xy=0,1") : "xy=0," + std::string(start), kPositioned);
  }
  BlockLine("DEF", kPlain);
  state_.ResetToDefaults();
  if (!options_.Comments) return;
  AddComment("Rem=All Default Values 18");
  Line("");
}

// A page break directly before the end makes the step to it by itself.
void ObjectWriter::EndOfSubsection(const ObjectRecord& end) {
  const bool behindPageBreak = state_.LastCommand == kPageBreak;
  const auto step = [&] { return std::int64_t{end.Y} - state_.CursorY; };
  if (step() != spacing_ && step() != 0) {
    if (!behindPageBreak) {
      BlockLineWithComment("Spacing=" + Number(step()) + ";\\n", "Rem=EndOfSubsection 19");
    }
    state_.CursorY = end.Y;
    Line("");
  }
  if (step() == spacing_) {
    if (!behindPageBreak) BlockLineWithComment("\\n", "Rem=EndOfSubsection 20");
    Line("");
  }
  state_.LastCommand.clear();
  if (state_.SubsectionFill < state_.SubsectionEnd) {
    const std::int64_t back = std::int64_t{state_.SubsectionEnd} - state_.SubsectionFill;
    BlockLineWithComment("Spacing=" + Number(back) + ";\\P", "Rem=\\P to reach SUBSECTIONENDSAT");
  }
  state_.CursorY = 0;
  state_.SubsectionEnd = 0;
}

// The font, size and colour of the first label stand before everything else, so that most labels need none.
void ObjectWriter::FirstLabelLine() {
  if (std::exchange(firstObjectSeen_, true)) return;
  for (int row = 1; row <= document_.Objects.LastScanned(); ++row) {
    const ObjectRecord& label = document_.Objects[row];
    if (label.Kind != ObjectKind::Label) continue;
    state_.FontName = label.FontName;
    state_.Size = label.FontSize;
    state_.Color = TextColourOf(label);
    BlockLine("F=" + label.FontName + ";S=" + Number(label.FontSize) + ";C=" + ColourText(state_.Color),
              kPlain);
    return;
  }
}

void ObjectWriter::Object(const ObjectRecord& record) {
  FirstLabelLine();
  const bool isPageBreak = record.Kind == ObjectKind::Command && record.Content == kPageBreak;
  Kind(record);
  state_.LastCommand = isPageBreak ? kPageBreak : std::string_view{};
}

void ObjectWriter::Kind(const ObjectRecord& record) {
  switch (record.Kind) {
    case ObjectKind::TextBox:
      return TextBox(record);
    case ObjectKind::Picture:
      return Picture(record);
    case ObjectKind::Qr:
      return Qr(record);
    case ObjectKind::Circle:
      return Circle(record);
    case ObjectKind::Chart:
      return Chart(record);
    case ObjectKind::Barcode:
      return Barcode(record);
    case ObjectKind::Line:
      return HorizontalLine(record);
    case ObjectKind::AnyLine:
      return AnyLine(record);
    case ObjectKind::Box:
      return Box(record);
    case ObjectKind::Command:
      return Command(record);
    case ObjectKind::Label:
      return Label(record);
    case ObjectKind::None:
    case ObjectKind::Section:
    case ObjectKind::Subsection:
    case ObjectKind::EndOfSubsection:
      return;
  }
}

std::string ObjectWriter::Flags(const ObjectRecord& record) {
  std::string prefix;
  if (record.PrintFlag != state_.Print) prefix += record.PrintFlag != 0 ? "Print;" : "NoPrint;";
  if (record.AlignToGrid != state_.Atg) prefix += record.AlignToGrid == 1 ? "Atg;" : "NAtg;";
  if (record.ModifiableByEndUser != state_.MBeu)
    prefix += record.ModifiableByEndUser == 1 ? "MBeu;" : "NMBeu;";
  state_.Print = record.PrintFlag;
  state_.Atg = record.AlignToGrid;
  state_.MBeu = record.ModifiableByEndUser;
  return prefix;
}

void ObjectWriter::VerticalStep(const ObjectRecord& record) {
  if (record.Y <= 0) return;
  const std::int64_t step = std::int64_t{record.Y} - state_.CursorY;
  const CommentRow& comments = CommentsOf(record.Kind);
  if (step == spacing_) {
    BlockLineWithComment("\\n", comments.oneStep);
  } else if (step != 0) {
    BlockLineWithComment("Spacing=" + Number(step) + ";\\n", comments.otherStep);
  }
  state_.CursorY = record.Y;
}

void ObjectWriter::ColourStep(const ObjectRecord& record) {
  const Colour colour = TextColourOf(record);
  if (colour == state_.Color) return;
  state_.Color = colour;
  BlockLine("c=" + ColourText(colour), kPlain);
}

// A zero behind another position would be ignored on reading and leave the object at the earlier one, so a
// position is written that rounds to zero.
std::string ObjectWriter::Position(std::string_view xValue) {
  const bool isZero = NumericPrefix(xValue) == 0 && !xValue.starts_with('$');
  if (isZero && state_.X == "0") return "0";
  // A position that begins with a point is none to the reader where text follows.
  const bool beginsLikeOne = xValue.find_first_of("$+-0123456789") == 0;
  state_.X = isZero ? "0.001" : beginsLikeOne ? std::string(xValue) : FormatNumber(NumericPrefix(xValue));
  return state_.X;
}

void ObjectWriter::TextBox(const ObjectRecord& record) {
  std::string items = Flags(record);
  VerticalStep(record);
  if (record.CharSet != state_.CharSet) {
    state_.CharSet = FormatNumber(NumericPrefix(record.CharSet));
    items += "CS=" + FormatNumber(NumericPrefix(record.CharSet)) + ";";
  }
  if (record.Strikethrough != state_.Strike) {
    state_.Strike = record.Strikethrough;
    // Not the flag: the viewer has always been given the charset here.
    items += "ST=" + record.CharSet + ";";
  }
  items += TextBoxPropsOf(record);
  items += ";TextBox=" + record.XValue + ",," + Number(record.Width) + "," +
           record.CommandPayload.value_or("") + "," + record.Content;
  BlockLine(items, kPositioned);
}

void ObjectWriter::Picture(const ObjectRecord& record) {
  const std::string prefix = Flags(record);
  VerticalStep(record);
  const std::string width = record.PictureFixedWidth != 0 ? Number(record.Width) : "";
  const std::string height = record.PictureFixedHeight != 0 ? Number(record.Height) : "";
  BlockLine(prefix + "Pic=" + record.PicturePath + "," + record.XValue + ",," + width + "," + height + "," +
                record.Link,
            kPositioned);
}

void ObjectWriter::Qr(const ObjectRecord& record) {
  const std::string prefix = Flags(record);
  VerticalStep(record);
  TextLine(prefix + "QrCode=" + record.XValue + ",," + Number(record.Height), record.Content, "nobar");
}

void ObjectWriter::Circle(const ObjectRecord& record) {
  const std::string prefix = Flags(record) + LineWidthItem(record);
  ColourStep(record);
  VerticalStep(record);
  BlockLine(prefix + "Circ=" + record.XValue + ",," + Number(record.Width), kPositioned);
}

void ObjectWriter::Chart(const ObjectRecord& record) {
  const std::string prefix = Flags(record);
  VerticalStep(record);
  for (const std::string& block : ChartBlocks(record))
    BlockLine(block, kPlain);
  BlockLine(prefix + "Buildgraph=" + record.XValue + ",", kPlain);
}

void ObjectWriter::Barcode(const ObjectRecord& record) {
  std::string items = Flags(record);
  ColourStep(record);
  VerticalStep(record);
  items += Position(record.XValue) + ";BarHeight=" + Number(record.Height);
  if (record.BarWidth > 1 && record.BarWidth <= 10) items += ";BarWidth=" + Number(record.BarWidth);
  if (record.VerticalBar != 0) items += ";VertBar";
  const Symbology* symbology = SymbologyOfKind(Int32Of(record.BarcodeKind));
  const std::string_view word = symbology == nullptr ? std::string_view{} : symbology->word;
  std::vector<std::string>& unnamed = report_.UnnamedSymbologies;
  if (word.empty() && std::find(unnamed.begin(), unnamed.end(), record.BarcodeKind) == unnamed.end())
    unnamed.push_back(record.BarcodeKind);
  items += word;
  TextLine(items, record.Content, "NoBar");
}

void ObjectWriter::HorizontalLine(const ObjectRecord& record) {
  const std::string prefix = Flags(record) + LineWidthItem(record);
  ColourStep(record);
  VerticalStep(record);
  BlockLine(prefix + "Line=" + record.XValue + "," + record.X2Value + (record.LineFlag != 0 ? ",1" : ""),
            kPositioned);
}

void ObjectWriter::AnyLine(const ObjectRecord& record) {
  const std::string prefix = Flags(record) + LineWidthItem(record);
  ColourStep(record);
  VerticalStep(record);
  BlockLine(prefix + "AnyLine=" + record.XValue + ",," + Number(record.Width) + "," + Number(record.Height) +
                "," + (record.LineFlag != 0 ? "1" : "0"),
            kPositioned);
}

void ObjectWriter::Box(const ObjectRecord& record) {
  const std::string prefix = Flags(record) + LineWidthItem(record);
  VerticalStep(record);
  ColourStep(record);
  BlockLine(prefix + (record.Filled != 0 ? "Boxf=" : "Box=") + record.XValue + ",," + Number(record.Width) +
                "," + Number(record.Height),
            kPositioned);
}

void ObjectWriter::Command(const ObjectRecord& record) {
  VerticalStep(record);
  const std::string word = CommandWord(record);
  if (!word.empty()) BlockLine(Position(record.XValue) + word, kPositioned);
}

void ObjectWriter::Label(const ObjectRecord& record) {
  VerticalStep(record);
  LabelAttributes(record);
  TextLine(LabelPosition(record), " " + record.Content, "");
  if (record.Content.find(document_.Settings.OpenCharacter()) == std::string::npos) return;
  // A brace in the text may have begun a block of its own, so nothing is taken for known behind it.
  state_.ResetToDefaults();
  BlockLineWithComment("DEF", "Rem=All default values 17");
}

void ObjectWriter::LabelAttributes(const ObjectRecord& record) {
  std::string items;
  const Colour colour = TextColourOf(record);
  if (colour != state_.Color) items += "c=" + ColourText(colour) + ";";
  if (record.FontName != state_.FontName) items += "f=" + record.FontName + ";";
  if (record.CharSet != state_.CharSet) items += "cs=" + record.CharSet + ";";
  if (record.FontSize != state_.Size) items += "s=" + Number(record.FontSize) + ";";
  if (record.Bold != state_.Bold) items += record.Bold != 0 ? "b=y;" : "b=n;";
  if (record.Underline != state_.Underline) items += record.Underline != 0 ? "u=y;" : "u=n;";
  if (record.Italic != state_.Italic) items += record.Italic != 0 ? "i=y;" : "i=n;";
  if (record.Strikethrough != state_.Strike) items += record.Strikethrough != 0 ? "st=y;" : "st=n;";
  const std::string caseMode = record.CaseMode.empty() ? "N" : record.CaseMode;
  if (caseMode != state_.Case) items += CaseItems(caseMode);
  const std::string align = record.Align.empty() ? "L" : record.Align;
  items += Flags(record);
  if (align != state_.Align) items += "a=" + align + ";";
  state_.Color = colour;
  state_.FontName = record.FontName;
  state_.CharSet = record.CharSet;
  state_.Size = record.FontSize;
  state_.Bold = record.Bold;
  state_.Underline = record.Underline;
  state_.Italic = record.Italic;
  state_.Strike = record.Strikethrough;
  state_.Case = caseMode;
  state_.Align = align;
  if (!items.empty()) BlockLine(WithoutLastSeparator(items), kPlain);
}

std::string ObjectWriter::LabelPosition(const ObjectRecord& record) {
  std::string items = Position(record.XValue) + ";";
  if (!record.Link.empty()) items += "Link=" + record.Link + ";";
  if (record.Format.empty() && !state_.Format.empty()) {
    items += "Format=;";
    state_.Format.clear();
  }
  if (record.ValueType == "Number") items += "Num;";
  if (record.ValueType == "Text") items += "Text;";
  if (record.Format != state_.Format) {
    items += "Format=" + record.Format + ";";
    state_.Format = record.Format;
  }
  if (record.Stretch && !Trim(*record.Stretch).empty())
    items += "Stretch=" + std::string(Trim(*record.Stretch)) + ";";
  return WithoutLastSeparator(items);
}

}  // namespace kev
