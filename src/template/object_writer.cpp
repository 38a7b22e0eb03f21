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

const CommentRow& CommentsOf(ObjectKind kind) {
  for (const CommentRow& row : kStepComments) {
    if (row.kind == kind) return row;
  }
  return kStepComments.back();
}

}  // namespace

ObjectWriter::ObjectWriter(const Document& document, const WriteOptions& options, WriteReport& report)
    : document_(document), options_(options), report_(report), spacing_(document.Settings.SpacingTwips()) {
  // About what a row takes. A text of this size that grows is moved again and again, to fresh memory each
  // time.
  constexpr std::size_t kBytesOfARow = 100;
  text_.reserve(kBytesOfARow * static_cast<std::size_t>(document.Objects.LastScanned()));
}

void ObjectWriter::Line(std::string_view text) {
  text_ += text;
  text_ += "\r\n";
}

void ObjectWriter::BeginBlock() {
  text_ += document_.Settings.OpenCharacter();
  blockBegin_ = text_.size();
}

void ObjectWriter::EndBlock(bool hasPosition) {
  if (!hasPosition && document_.Settings.HasOwnDelimiters()) text_ += BlockIsEmpty() ? "0" : ";0";
  text_ += document_.Settings.CloseCharacter();
}

void ObjectWriter::DropLastSeparator() {
  if (!BlockIsEmpty() && text_.back() == ';') text_.pop_back();
}

void ObjectWriter::AddComment(std::string_view marker) {
  if (!options_.Comments) return;
  text_ += kBlank;
  BeginBlock();
  text_ += marker;
  EndBlock(kPlain);
}

void ObjectWriter::BeginBlockLine() {
  text_ += "  ";
  BeginBlock();
}

void ObjectWriter::EndBlockLine(bool hasPosition) {
  EndBlock(hasPosition);
  Line("");
}

void ObjectWriter::EndTextLine(std::string_view margin, std::string_view text, std::string_view endItems) {
  EndBlock(kPositioned);
  Add(margin, text);
  BeginBlock();
  text_ += endItems;
  EndBlockLine(kPlain);
}

void ObjectWriter::Subsection(const ObjectRecord& bar, std::int32_t filledTo, std::string_view section,
                              std::string_view head) {
  Add("\r\n<", section, "\r\n ", head, "\r\n\r\n");
  state_.CursorY = 0;
  state_.SubsectionEnd = bar.EndsAt;
  state_.SubsectionFill = filledTo;
  state_.LastCommand.clear();
  if (bar.HeightGiven != 0) BlockLine(kPlain, "SubSectionHeight=", bar.EndsAt);
  const std::string_view start = Trim(bar.StartY);
  if (!document_.Page->EqualsIgnoringCase(start, kCurrentYValue))
    BlockLine(kPositioned, "xy=0,", NumericPrefix(start) == 0 ? "1" : start);
  BlockLine(kPlain, "DEF");
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
      BlockLineWithComment("Rem=EndOfSubsection 19", "Spacing=", step(), ";\\n");
    }
    state_.CursorY = end.Y;
    Line("");
  }
  if (step() == spacing_) {
    if (!behindPageBreak) BlockLineWithComment("Rem=EndOfSubsection 20", "\\n");
    Line("");
  }
  state_.LastCommand.clear();
  if (state_.SubsectionFill < state_.SubsectionEnd) {
    const std::int64_t back = std::int64_t{state_.SubsectionEnd} - state_.SubsectionFill;
    BlockLineWithComment("Rem=\\P to reach SUBSECTIONENDSAT", "Spacing=", back, ";\\P");
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
    BlockLine(kPlain, "F=", label.FontName, ";S=", label.FontSize, ";C=", ColourText(state_.Color));
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

void ObjectWriter::Flags(const ObjectRecord& record) {
  if (record.PrintFlag != state_.Print) Add(record.PrintFlag != 0 ? "Print;" : "NoPrint;");
  if (record.AlignToGrid != state_.Atg) Add(record.AlignToGrid == 1 ? "Atg;" : "NAtg;");
  if (record.ModifiableByEndUser != state_.MBeu) Add(record.ModifiableByEndUser == 1 ? "MBeu;" : "NMBeu;");
  state_.Print = record.PrintFlag;
  state_.Atg = record.AlignToGrid;
  state_.MBeu = record.ModifiableByEndUser;
}

void ObjectWriter::VerticalStep(const ObjectRecord& record) {
  if (record.Y <= 0) return;
  const std::int64_t step = std::int64_t{record.Y} - state_.CursorY;
  if (step == spacing_) {
    BlockLineWithComment(CommentsOf(record.Kind).oneStep, "\\n");
  } else if (step != 0) {
    BlockLineWithComment(CommentsOf(record.Kind).otherStep, "Spacing=", step, ";\\n");
  }
  state_.CursorY = record.Y;
}

void ObjectWriter::ColourStep(const ObjectRecord& record) {
  const Colour colour = TextColourOf(record);
  if (colour == state_.Color) return;
  state_.Color = colour;
  BlockLine(kPlain, "c=", ColourText(colour));
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
  VerticalStep(record);
  BeginBlockLine();
  Flags(record);
  if (record.CharSet != state_.CharSet) {
    state_.CharSet = FormatNumber(NumericPrefix(record.CharSet));
    Add("CS=", state_.CharSet, ";");
  }
  if (record.Strikethrough != state_.Strike) {
    state_.Strike = record.Strikethrough;
    // Not the flag: the viewer has always been given the charset here.
    Add("ST=", record.CharSet, ";");
  }
  Add(TextBoxPropsOf(record), ";TextBox=", record.XValue, ",,", record.Width, ",");
  if (record.CommandPayload) Add(*record.CommandPayload);
  Add(",", record.Content);
  EndBlockLine(kPositioned);
}

void ObjectWriter::Picture(const ObjectRecord& record) {
  VerticalStep(record);
  BeginBlockLine();
  Flags(record);
  Add("Pic=", record.PicturePath, ",", record.XValue, ",,");
  if (record.PictureFixedWidth != 0) Add(record.Width);
  Add(",");
  if (record.PictureFixedHeight != 0) Add(record.Height);
  Add(",", record.Link);
  EndBlockLine(kPositioned);
}

void ObjectWriter::Qr(const ObjectRecord& record) {
  VerticalStep(record);
  BeginBlockLine();
  Flags(record);
  Add("QrCode=", record.XValue, ",,", record.Height);
  EndTextLine("", record.Content, "nobar");
}

void ObjectWriter::BeginShape(const ObjectRecord& record) {
  BeginBlockLine();
  Flags(record);
  Add(LineWidthItem(record));
}

void ObjectWriter::Circle(const ObjectRecord& record) {
  ColourStep(record);
  VerticalStep(record);
  BeginShape(record);
  Add("Circ=", record.XValue, ",,", record.Width);
  EndBlockLine(kPositioned);
}

void ObjectWriter::Chart(const ObjectRecord& record) {
  VerticalStep(record);
  for (const std::string& block : ChartBlocks(record))
    BlockLine(kPlain, block);
  BeginBlockLine();
  Flags(record);
  Add("Buildgraph=", record.XValue, ",");
  EndBlockLine(kPlain);
}

void ObjectWriter::Barcode(const ObjectRecord& record) {
  ColourStep(record);
  VerticalStep(record);
  BeginBlockLine();
  Flags(record);
  Add(Position(record.XValue), ";BarHeight=", record.Height);
  if (record.BarWidth > 1 && record.BarWidth <= 10) Add(";BarWidth=", record.BarWidth);
  if (record.VerticalBar != 0) Add(";VertBar");
  const Symbology* symbology = SymbologyOfKind(Int32Of(record.BarcodeKind));
  const std::string_view word = symbology == nullptr ? std::string_view{} : symbology->word;
  std::vector<std::string>& unnamed = report_.UnnamedSymbologies;
  if (word.empty() && std::find(unnamed.begin(), unnamed.end(), record.BarcodeKind) == unnamed.end())
    unnamed.push_back(record.BarcodeKind);
  Add(word);
  EndTextLine("", record.Content, "NoBar");
}

void ObjectWriter::HorizontalLine(const ObjectRecord& record) {
  ColourStep(record);
  VerticalStep(record);
  BeginShape(record);
  Add("Line=", record.XValue, ",", record.X2Value, record.LineFlag != 0 ? ",1" : "");
  EndBlockLine(kPositioned);
}

void ObjectWriter::AnyLine(const ObjectRecord& record) {
  ColourStep(record);
  VerticalStep(record);
  BeginShape(record);
  Add("AnyLine=", record.XValue, ",,", record.Width, ",", record.Height, record.LineFlag != 0 ? ",1" : ",0");
  EndBlockLine(kPositioned);
}

void ObjectWriter::Box(const ObjectRecord& record) {
  VerticalStep(record);
  ColourStep(record);
  BeginShape(record);
  Add(record.Filled != 0 ? "Boxf=" : "Box=", record.XValue, ",,", record.Width, ",", record.Height);
  EndBlockLine(kPositioned);
}

void ObjectWriter::Command(const ObjectRecord& record) {
  VerticalStep(record);
  const std::string word = CommandWord(record);
  if (!word.empty()) BlockLine(kPositioned, Position(record.XValue), word);
}

void ObjectWriter::Label(const ObjectRecord& record) {
  VerticalStep(record);
  LabelAttributes(record);
  LabelPosition(record);
  EndTextLine(" ", record.Content, "");
  if (record.Content.find(document_.Settings.OpenCharacter()) == std::string::npos) return;
  // A brace in the text may have begun a block of its own, so nothing is taken for known behind it.
  state_.ResetToDefaults();
  BlockLineWithComment("Rem=All default values 17", "DEF");
}

void ObjectWriter::LabelAttributes(const ObjectRecord& record) {
  const std::size_t before = text_.size();
  BeginBlockLine();
  const Colour colour = TextColourOf(record);
  if (colour != state_.Color) Add("c=", ColourText(colour), ";");
  if (record.FontName != state_.FontName) Add("f=", state_.FontName = record.FontName, ";");
  if (record.CharSet != state_.CharSet) Add("cs=", state_.CharSet = record.CharSet, ";");
  if (record.FontSize != state_.Size) Add("s=", record.FontSize, ";");
  if (record.Bold != state_.Bold) Add(record.Bold != 0 ? "b=y;" : "b=n;");
  if (record.Underline != state_.Underline) Add(record.Underline != 0 ? "u=y;" : "u=n;");
  if (record.Italic != state_.Italic) Add(record.Italic != 0 ? "i=y;" : "i=n;");
  if (record.Strikethrough != state_.Strike) Add(record.Strikethrough != 0 ? "st=y;" : "st=n;");
  const std::string_view caseMode = record.CaseMode.empty() ? "N" : std::string_view(record.CaseMode);
  if (caseMode != state_.Case) Add(CaseItems(state_.Case = caseMode));
  const std::string_view align = record.Align.empty() ? "L" : std::string_view(record.Align);
  Flags(record);
  if (align != state_.Align) Add("a=", state_.Align = align, ";");
  state_.Color = colour;
  state_.Size = record.FontSize;
  state_.Bold = record.Bold;
  state_.Underline = record.Underline;
  state_.Italic = record.Italic;
  state_.Strike = record.Strikethrough;
  if (BlockIsEmpty()) return text_.resize(before);
  DropLastSeparator();
  EndBlockLine(kPlain);
}

void ObjectWriter::LabelPosition(const ObjectRecord& record) {
  BeginBlockLine();
  Add(Position(record.XValue), ";");
  if (!record.Link.empty()) Add("Link=", record.Link, ";");
  if (record.Format.empty() && !state_.Format.empty()) {
    Add("Format=;");
    state_.Format.clear();
  }
  if (record.ValueType == "Number") Add("Num;");
  if (record.ValueType == "Text") Add("Text;");
  if (record.Format != state_.Format) {
    Add("Format=", record.Format, ";");
    state_.Format = record.Format;
  }
  if (record.Stretch && !Trim(*record.Stretch).empty()) Add("Stretch=", Trim(*record.Stretch), ";");
  DropLastSeparator();
}

}  // namespace kev
