// SPDX-License-Identifier: MIT
#include "document/object_creation.h"

#include "base/numbers.h"
#include "base/text.h"
#include "document/kind_defaults.h"
#include "document/position.h"
#include "document/symbologies.h"

namespace kev {
namespace {

class RowFiller {
 public:
  RowFiller(CreationContext& context, const NewObject& object, int row)
      : context_(context), object_(object), row_(row), record_(context.document.Objects[row]) {}

  void Fill();

 private:
  AttributeState& attributes() { return context_.attributes; }
  LayoutCursor& cursor() { return context_.cursor; }
  double Position(std::string_view text) const {
    return PositionOrZero(text, context_.document.Columns, *context_.document.Page);
  }

  void Common();
  void Owned();
  void Place();
  void Section();
  void Subsection();
  void EndOfSubsection();
  void CloseBar(ObjectRecord& bar);
  void Command();
  void Box();
  void Chart();
  void Line();
  void Circle();
  void AnyLine();
  void Picture();
  void Barcode();
  void Qr();
  void Label();
  void TextBox();
  void TextBoxFromProps();

  CreationContext& context_;
  const NewObject& object_;
  int row_;
  ObjectRecord& record_;
};

void RowFiller::Fill() {
  Common();
  switch (object_.kind) {
    case ObjectKind::None:
      return;
    case ObjectKind::Section:
      return Section();
    case ObjectKind::Subsection:
      return Subsection();
    case ObjectKind::EndOfSubsection:
      return EndOfSubsection();
    case ObjectKind::Command:
      return Command();
    case ObjectKind::Box:
      return Box();
    case ObjectKind::Chart:
      return Chart();
    case ObjectKind::Line:
      return Line();
    case ObjectKind::Circle:
      return Circle();
    case ObjectKind::AnyLine:
      return AnyLine();
    case ObjectKind::Picture:
      return Picture();
    case ObjectKind::Barcode:
      return Barcode();
    case ObjectKind::Qr:
      return Qr();
    case ObjectKind::Label:
      return Label();
    case ObjectKind::TextBox:
      return TextBox();
  }
}

void RowFiller::Common() {
  const KindDefaults& defaults = DefaultsOf(object_.kind);
  context_.document.Objects.ClearRow(row_);
  record_.Kind = object_.kind;
  record_.Handles = defaults.handles;
  record_.MayMoveVertically = defaults.mayMoveVertically;
  record_.MayMoveHorizontally = defaults.mayMoveHorizontally;
  record_.MayResize = defaults.mayResize;
  record_.Align = defaults.align;
  record_.Height = defaults.height;
  record_.AlignToGrid = defaults.alignToGrid == GridSource::State ? attributes().AttrAtg
                        : defaults.alignToGrid == GridSource::On  ? std::int16_t{1}
                                                                  : std::int16_t{0};
  record_.PrintFlag = kTrue;
  if (!IsBand(object_.kind)) Owned();
  if (defaults.takesColour) {
    record_.ColorR = attributes().AttrColor.Red;
    record_.ColorG = attributes().AttrColor.Green;
    record_.ColorB = attributes().AttrColor.Blue;
  }
  if (defaults.takesLineWidth) record_.LineWidth = ToInt16(attributes().AttrLineWidth);
}

void RowFiller::Owned() {
  record_.PrintFlag = attributes().AttrPrint;
  record_.ModifiableByEndUser = attributes().AttrMBeu;
  record_.OwnerName = context_.document.Objects[cursor().OpenSubsection].SectionName;
  record_.XValue = std::string(Trim(object_.xValue));
  Place();
}

// A given Y counts from the top of the body, less the position at which the subsection starts.
void RowFiller::Place() {
  if (Trim(object_.y).empty()) {
    record_.Y = cursor().CursorY;
    record_.AbsoluteY = cursor().SurfaceY;
    return;
  }
  record_.Y = Int32Of(object_.y);
  const std::int64_t start = Int32Of(context_.document.Objects[cursor().OpenSubsection].StartY);
  record_.AbsoluteY = Fit32(std::int64_t{cursor().SubsectionTop} + kBarHeight + record_.Y - start);
}

void RowFiller::Section() {
  cursor().SurfaceY = Fit32(std::int64_t{cursor().SurfaceY} + 100);
  record_.SectionTitle = object_.title;
  record_.ColorR = record_.ColorG = record_.ColorB = 170;
  record_.AbsoluteY = cursor().SurfaceY;
  cursor().SurfaceY = Fit32(std::int64_t{cursor().SurfaceY} + kBarHeight);
}

void RowFiller::Subsection() {
  const CodePage& page = *context_.document.Page;
  const std::string line(Trim(object_.title));
  const bool isBase = page.Upper(line) == object_.sectionName && object_.sectionName != kConfigurationSection;
  record_.SectionOwner = object_.sectionName;
  record_.SectionTitle = isBase ? object_.sectionName : object_.sectionName + " " + line;
  record_.SectionName = SectionNameOf(line, page);
  record_.StartY = kCurrentYValue;
  record_.Content = ContentOfBar(record_);
  record_.ColorR = record_.ColorG = record_.ColorB = 200;
  record_.FontName = "Arial";
  record_.FontSize = 8;
  record_.Width = kBodyWidth;
  record_.EndsAt = kNewBodyHeight;
  record_.AbsoluteY = cursor().SurfaceY;
  cursor().OpenSubsection = cursor().SubsectionRow = row_;
  cursor().SubsectionTop = record_.AbsoluteY;
  cursor().CursorY = cursor().SubsectionMaxY = 0;
  cursor().SurfaceY = Fit32(std::int64_t{cursor().SurfaceY} + kBarHeight);
}

void RowFiller::CloseBar(ObjectRecord& bar) {
  bar.EndRow = static_cast<std::int16_t>(row_);
  bar.EndsAt = cursor().SubsectionMaxY;
  bar.SectionCursorY = cursor().CursorY;
  if (cursor().LastCommand == kPageBreak) {
    bar.EndsAt = Fit32(std::int64_t{context_.document.Settings.SpacingTwips()} + cursor().SubsectionMaxY);
    bar.SectionCursorY = bar.EndsAt;
  }
  cursor().LastCommand.clear();
}

// Without a bar there is nothing to close: row 0 stays blank and the end row stands alone.
void RowFiller::EndOfSubsection() {
  const int barRow = Int32Of(object_.extra);
  ObjectRecord& bar = context_.document.Objects[barRow];
  if (barRow != 0) CloseBar(bar);
  record_.Width = bar.Width;
  record_.OwnerName = bar.SectionName;
  record_.Y = bar.EndsAt;
  record_.AbsoluteY = Fit32(std::int64_t{bar.AbsoluteY} + bar.Height + bar.EndsAt);
  cursor().SurfaceY = Fit32(std::int64_t{record_.AbsoluteY} + kEndBarHeight);
  cursor().OpenSubsection = 0;
}

void RowFiller::Command() {
  record_.Content = object_.text;
  record_.ColorR = 0;
  record_.ColorG = 128;
  record_.ColorB = 0;
  record_.Bold = kTrue;
  record_.FontName = "Arial";
  record_.FontSize = 8;
  record_.XValue = attributes().AttrX;
  // A template holds none of its flags, so none is taken over from what stands before it.
  record_.PrintFlag = kTrue;
  record_.ModifiableByEndUser = 0;
}

void RowFiller::Box() {
  record_.Width = Int32Of(object_.widthOrEndX);
  record_.Height = Int32Of(object_.height);
  record_.Filled = ToFlag(object_.filled);
}

void RowFiller::Chart() {
  record_.Width = Int32Of(object_.widthOrEndX);
  record_.Height = Int32Of(object_.height);
  record_.ChartValues.assign(object_.chartValues.begin(), object_.chartValues.end());
}

void RowFiller::Line() {
  record_.X2Value = std::string(Trim(object_.widthOrEndX));
  record_.Width = ToInt32(Position(record_.X2Value) - Position(record_.XValue));
  record_.LineFlag = ToFlag(object_.extra == "1");
}

void RowFiller::Circle() {
  record_.Width = record_.Height = Int32Of(object_.widthOrEndX);
}

void RowFiller::AnyLine() {
  record_.Width = ToInt32(Position(Trim(object_.widthOrEndX)));
  record_.Height = Int32Of(object_.height);
  record_.LineFlag = ToFlag(object_.extra == "1");
}

// A side that is not given follows the picture's own proportion, or its own size where neither is given.
void RowFiller::Picture() {
  record_.PicturePath = record_.Content = object_.path;
  record_.Link = object_.link;
  const PictureAnswer answer = context_.pictures.Look(object_.path);
  record_.PictureFile = answer.File;
  const bool widthGiven = !Trim(object_.widthOrEndX).empty();
  const bool heightGiven = !Trim(object_.height).empty();
  record_.PictureFixedWidth = ToFlag(widthGiven);
  record_.PictureFixedHeight = ToFlag(heightGiven);
  const TextExtent own = answer.Size.value_or(TextExtent{});
  double width = widthGiven ? Int32Of(object_.widthOrEndX) : own.Width;
  double height = heightGiven ? Int32Of(object_.height) : own.Height;
  if (widthGiven && !heightGiven) height = own.Width > 0 ? width * own.Height / own.Width : 0;
  if (heightGiven && !widthGiven) width = own.Height > 0 ? height * own.Width / own.Height : 0;
  record_.Width = ToInt32(width);
  record_.Height = ToInt32(height);
}

bool IsNineDigits(std::string_view text) {
  return text.size() == 9 && text.find_first_not_of("0123456789") == std::string_view::npos;
}

void RowFiller::Barcode() {
  const AttributeState& state = attributes();
  record_.Content = Trim(object_.text);
  record_.XValue = state.AttrX;
  record_.Width = 1000;
  record_.Height = ToInt32(state.AttrBarHeight);
  if (record_.Height == 0) {
    const FontSpec font{state.AttrFontName, state.AttrSize, state.AttrBold != 0, state.AttrItalic != 0};
    record_.Height = ToInt32(context_.measurer.Measure(font, "A").Height);
  }
  record_.BarWidth = ToInt16(state.AttrBarWidth);
  record_.BarcodeKind = std::to_string(state.AttrSymbology);
  record_.BarcodeSample = SampleForKind(state.AttrSymbology);
  if (state.AttrSymbology == 32 && IsNineDigits(record_.Content)) record_.BarcodeSample = record_.Content;
  record_.VerticalBar = ToFlag(state.AttrRotation == 90);
}

void RowFiller::Qr() {
  const AttributeState& state = attributes();
  record_.Content = Trim(object_.text);
  record_.XValue = Trim(state.AttrQrX);
  record_.Width = record_.Height = Int32Of(state.AttrQrSize);
  record_.BarWidth = ToInt16(state.AttrBarWidth);
  record_.BarcodeKind = std::to_string(kQrSymbology);
}

void RowFiller::Label() {
  AttributeState& state = attributes();
  record_.Content = state.AttrTrim != 0 ? std::string(Trim(object_.text)) : object_.text;
  record_.XValue =
      object_.xValue.starts_with('$') ? object_.xValue : FormatNumber(NumericPrefix(object_.xValue));
  record_.Align = state.AttrAlign;
  record_.Bold = state.AttrBold;
  record_.Italic = state.AttrItalic;
  record_.Underline = state.AttrUnderline;
  record_.FontName = state.AttrFontName.empty() ? "Arial" : state.AttrFontName;
  record_.FontSize = ToInt32(state.AttrSize * context_.zoomFactor);
  record_.CharSet = state.AttrCharSet;
  record_.CaseMode = state.AttrCase;
  record_.ValueType = state.AttrValueType;
  record_.Link = object_.link;
  record_.Format = object_.format;
  record_.Stretch = state.AttrStretch;
  state.AttrStretch.reset();
  MeasureText(record_, context_.measurer);
  record_.Handles = record_.Width == 0 ? kTextHandles : kAllHandles;
}

std::optional<std::string> NotEmpty(std::string_view text) {
  return text.empty() ? std::nullopt : std::optional(std::string(text));
}

void RowFiller::TextBox() {
  const AttributeState& state = attributes();
  record_.Content = object_.text;
  record_.Width = Int32Of(object_.widthOrEndX);
  record_.CommandPayload = NotEmpty(object_.payload);
  record_.CharSet = state.AttrCharSet;
  record_.Underline = state.AttrUnderline;
  record_.Italic = state.AttrItalic;
  record_.ValueType = state.AttrValueType;
  record_.Handles = record_.Width == 0 ? kTextHandles : kAllHandles;
  TextBoxFromProps();
}

void RowFiller::TextBoxFromProps() {
  const Tokens props = SplitTokens(attributes().TextBoxProps, ',');
  record_.FontName = props[2].empty() ? "Arial" : std::string(props[2]);
  record_.FontSize = ToInt32(NumericPrefix(props[3]) * context_.zoomFactor);
  record_.Bold = ToFlag(IsYes(props[4]));
  record_.TextBoxFrameValue = NotEmpty(props[6]);
  record_.ColorR = Int16Of(props[7]);
  record_.ColorG = Int16Of(props[8]);
  record_.ColorB = Int16Of(props[9]);
  record_.BackColorR = Int16Of(props[10]);
  record_.BackColorG = Int16Of(props[11]);
  record_.BackColorB = Int16Of(props[12]);
  if (!Trim(props[13]).empty()) record_.TextBoxExtraValue = NumericPrefix(props[13]);
}

}  // namespace

int AddObject(CreationContext& context, const NewObject& object) {
  ObjectTable& objects = context.document.Objects;
  if (object.kind == ObjectKind::None) return 0;
  const int row = objects.TakeFreeRow();
  if (context.onCreate) context.onCreate(row, object.kind);
  RowFiller(context, object, row).Fill();
  return row;
}

FontSpec FontOf(const ObjectRecord& record) {
  return {record.FontName,
          static_cast<double>(record.FontSize),
          record.Bold != 0,
          record.Italic != 0,
          record.Strikethrough != 0,
          record.Underline != 0,
          record.CharSet};
}

void MeasureText(ObjectRecord& record, const TextMeasurer& measurer) {
  const TextExtent extent = measurer.Measure(FontOf(record), record.Content);
  record.Width = ToInt32(extent.Width);
  record.Height = ToInt32(extent.Height);
}

bool IsYes(std::string_view text) {
  return text == "Y" || text == "y" || text == "1";
}

std::string_view SampleForKind(int symbology) {
  const Symbology* row = SymbologyOfKind(symbology);
  return row == nullptr ? std::string_view{} : row->specimen;
}

void FitPicture(ObjectRecord& record, const TextExtent& own) {
  if (!(own.Width > 0 && own.Height > 0)) return;
  const bool fixedWidth = record.PictureFixedWidth != kFalse;
  const bool fixedHeight = record.PictureFixedHeight != kFalse;
  if (!fixedWidth) record.Width = ToInt32(fixedHeight ? record.Height * own.Width / own.Height : own.Width);
  if (!fixedHeight) record.Height = ToInt32(fixedWidth ? record.Width * own.Height / own.Width : own.Height);
}

std::string SectionNameOf(std::string_view headLine, const CodePage& page) {
  const std::string_view name = NthToken(Trim(headLine), 1, ':');
  return page.Upper(name.empty() ? name : name.substr(1));
}

std::string ContentOfBar(const ObjectRecord& bar) {
  // Behind a blank stands the head line, which the bar of a section lacks.
  const bool isBase = bar.SectionTitle.Text().find(kBlank) == std::string::npos;
  return isBase ? "Section: " + bar.SectionTitle.Text()
                : bar.SectionTitle.Text() + " [Starts in position: " + bar.StartY.Text() + "]";
}

}  // namespace kev
