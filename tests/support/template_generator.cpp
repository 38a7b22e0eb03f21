// SPDX-License-Identifier: MIT
#include "support/template_generator.h"

#include <algorithm>

#include "base/numbers.h"
#include "base/text.h"
#include "chart/definition.h"
#include "document/papers.h"

namespace kev::test {
namespace {

constexpr std::string_view kLineEnd = "\r\n";

// Makes the delimiters of a text the document's own; the text holds braces for blocks and nothing else.
std::string WithDelimiters(std::string text, char open, char close) {
  ReplaceAll(text, '{', open);
  ReplaceAll(text, '}', close);
  return text;
}

}  // namespace

std::string TemplateGenerator::Of(std::initializer_list<std::string_view> choices) {
  return std::string(choices.begin()[Below(static_cast<int>(choices.size()))]);
}

std::string TemplateGenerator::Word() {
  return Of(
      {"Total", "@Name", "x", "Caf\xE9", "100%", "a=b", "(c)", "#5", "No. 7", "$Price", "\xA4", "-3", "[1]"});
}

std::string TemplateGenerator::Text() {
  std::string text = Word();
  for (int n = Below(3); n > 0; --n)
    text += Of({" ", "  ", ": ", ", ", "; "}) + Word();
  return text;
}

std::string TemplateGenerator::Position() {
  return Chance(60) ? std::to_string(1 + Below(10000))
                    : Of({"$Col_01", "$Col_02", "$col_03", "$Col_01 + 120", "$Col_02 - 50", "$Gone",
                          "$Gone + 70", "$Col_02 * 2", "$Col_03 / 2", "0.5", "-120"});
}

std::string TemplateGenerator::Colour() {
  return Chance(50) ? Number(16) : Number(256) + "," + Number(256) + "," + Number(256);
}

std::string TemplateGenerator::Head(bool quirky) {
  std::string head;
  if (Chance(40)) head += "[CONFIGURATION]\r\n";
  for (const std::string_view line : {"Report_Title=Title", "Spacing=150", "DecimalPoint=,", "LM=12.5",
                                      "PAPERSIZE=A5", "Copies=3", "MAXY=900", "ZoomToOpen=80%", "OPEN_VIEW=Y",
                                      "Save_Allowed=N", "EBEU=Y", "Orientation=2", "ViewerOptions=a=b"}) {
    if (Chance(25)) head += std::string(line) + std::string(kLineEnd);
  }
  if (quirky) {
    head += Of({"", "PAPERSIZE=Mine\r\nPAGEWIDTH=5.5\r\n", "PAGELENGHT=7000\r\n", "Spacing=0\r\n",
                "Spacing=-30\r\n", "Spacing=0.5\r\n", "PAPERSIZE=(custom)\r\nPAGEWIDTH=9\r\n", "[Other]\r\n",
                "FILEFORMAT=2\r\n"});
  }
  for (int n = Below(4); n > 0; --n)
    head += "$Col_0" + std::to_string(n) + "=" + Number(9000) + Of({"", ".5"}) + std::string(kLineEnd);
  return head + "KEXVER=4\r\n[HEADER]\r\n";
}

std::string TemplateGenerator::Attributes() {
  std::string items;
  for (int n = 1 + Below(4); n > 0; --n) {
    items += Of({"b=y",         "b=n",     "i=y",           "u=y",
                 "a=r",         "a=c",     "f=Courier New", "f=Arial",
                 "s=12",        "s=8",     "cs=161",        "DEF",
                 "Upper=Y",     "Lower=Y", "FirstUp=N",     "Print",
                 "NoPrint",     "Atg",     "NAtg",          "MBeu",
                 "NMBeu",       "W=1",     "W=3",           "TBProps=285,Arial,8,,,1,0,0,0,255,255,255,",
                 "Format=0.00", "Format="}) +
             ";";
  }
  return "{" + items + "c=" + Colour() + "}";
}

std::string TemplateGenerator::SaneLine() {
  switch (Below(15)) {
    case 0:
      return Attributes();
    case 1:
      return "{Box=" + Position() + ",," + Number(5000) + "," + Number(900) + "}";
    case 2:
      return "{W=1;Boxf=" + Position() + ",," + Number(5000) + "," + Number(900) + "}";
    case 3:
      return "{Line=" + Position() + "," + Position() + Of({"", ",1"}) + "}";
    case 4:
      return "{AnyLine=" + Position() + ",,-" + Number(900) + "," + Number(900) + Of({",0}", ",1}"});
    case 5:
      return "{Circ=" + Position() + ",," + Number(900) + "}";
    case 6:
      return "{Pic=a\\b.png," + Position() + ",," + Of({"", "300"}) + "," + Of({"", "200"}) + ",}";
    case 7:
      return "{QrCode=" + Position() + ",," + Number(900) + "}" + Text() + "{nobar}";
    case 8:
      return "{" + Position() + ";BarHeight=" + Number(900) + Of({";", ";BarWidth=3;", ";VertBar;"}) +
             Of({"Bar", "Ean8", "Ean13", "B2Of5Int", "B2Of5Ind", "B2Of5Bar", "B128B", "B128C"}) + "}" +
             Text() + "{NoBar}";
    case 9:
      return "{TBProps=285,Arial,9,,,," + Of({"1,2,3,4,5,6,", "4,-1,-1,7,-1,-1,2.5"}) +
             ";TextBox=" + Position() + ",," + Number(3000) + ",@V,text}";
    case 10:
      return "{Graph_Type=" + Of({"2D", "3D", "PIE"}) + ";Graph_Width=" + Number(5000) +
             ";Graph_Height=" + Number(5000) + "}\r\n{Graph_Title=Sales}\r\n{Buildgraph=" + Position() + ",}";
    case 11:
      return "{" + Position() + ";\\np}\r\n{\\n}";
    case 12:
      return Of({"{\\n}", "{Spacing=450;\\n}", "{Spacing=30;\\n}"});
    default:
      return "{" + Position() + Of({"", ";Num", ";Text;Format=0", ";Link=http://a", ";Stretch=500"}) + ";} " +
             Text() + "{}";
  }
}

std::string TemplateGenerator::QuirkyLine() {
  switch (Below(16)) {
    case 0:
      return "{0;}" + Text() + "{\\n}";
    case 1:
      return "{100;}" + Word() + " {in EUR} " + Word() + "{\\n}";
    case 2:
      return "{b=y}" + Text() + "{}";
    case 3:
      return "{Spacing=300;\\P}";
    case 4:
      return Of({"{xy=0,500}", "{Top}", "{xy=0,0}", "{SubSectionHeight=9}"});
    case 5:
      return "{100;\\np}";
    case 6:
      return Text() + Of({"}", "", "{"});
    case 7:
      return "{Pic=a.png,100," + Number(900) + ",1,1}";
    case 8:
      return "{Spacing=-" + Number(500) + ";\\n}";
    case 9:
      return "{5;B32}1{nobar}{QrCode=,,}q{nobar}";
    case 10:
      return "{Trim=n;Vert;BarWidth=20;BarHeight=0}";
    case 11:
      return "[ITEMS" + Of({"]", ":]", ":a,b]", " and more]", "", "{x}]"});
    case 12:
      return Of({"[DATA]", "[FOOTER]", "[HEADER]", " [data] "});
    case 13:
      return "{Execute=a,b;99;st=y;Nonsense=1}";
    case 14:
      return "{Link=l;Num;Graph_Title=t;Stretch=7;c=;s=0;f=;cs=}";
    default:
      return "{Box=}{Line=}{Circ=1,50,2}}{TextBox=,,,,}";
  }
}

std::string TemplateGenerator::Subsections(bool quirky) {
  std::string text;
  for (int n = 1 + Below(8); n > 0; --n) {
    text += Of({"", "  ", "\t"});
    text += (quirky && Chance(40) ? QuirkyLine() : SaneLine()) + std::string(kLineEnd);
    if (Chance(40)) text += "  {\\n}\r\n";
  }
  return text;
}

std::string TemplateGenerator::Sane() {
  std::string text = Head(false) + Subsections(false);
  for (const std::string_view section : {"[FOOTER]", "[DATA]"}) {
    text += std::string(section) + std::string(kLineEnd) + Subsections(false);
    for (int n = Below(3); n > 0; --n)
      text += " [SUB" + std::to_string(++names_) + ":a]\r\n" + Subsections(false);
  }
  return text;
}

std::string TemplateGenerator::Quirky() {
  std::string text = Head(true) + Subsections(true);
  for (int n = Below(4); n > 0; --n)
    text += Of({"[FOOTER]", "[DATA]", "[ITEMS]", "[items:x]", "[HEADER]"}) + std::string(kLineEnd) +
            Subsections(true);
  if (Chance(30)) {
    const std::string pair = Of({"<>", "()", "~^", "{>", "<}", "\x8B\x9B"});
    const char open = pair[0];
    const char close = pair[1];
    return std::string("Open=") + open + "\r\nClose=" + close + "\r\n" + WithDelimiters(text, open, close);
  }
  return text;
}

std::string TemplateGenerator::Hostile() {
  if (Chance(20)) {
    // Delimiters that stand for something else already.
    const std::string pair = Of({"||", "a0", ";=", "[]", "$,", "\\n", "\x01\x02", " \t"});
    return std::string("Open=") + pair[0] + "\r\nClose=" + pair[1] + "\r\n" +
           WithDelimiters(Head(true) + Subsections(true), pair[0], pair[1]);
  }
  std::string text = Chance(80) ? "[HEADER]\r\n" : "";
  for (int n = Below(120); n > 0; --n) {
    if (Chance(15)) {
      text += static_cast<char>(Below(256));
    } else {
      text += Of({"{",
                  "}",
                  ";",
                  ",",
                  "=",
                  "\r\n",
                  " ",
                  "0",
                  "-1",
                  "$Col_01",
                  "[DATA]",
                  "[",
                  "\\n",
                  "\\P",
                  "\\np",
                  "Box=",
                  "Line=",
                  "Pic=",
                  "xy=0,",
                  "Circ=",
                  "Spacing=",
                  "2147483647",
                  "-2147483648",
                  "1e308",
                  "99999",
                  "TextBox=",
                  "TBProps=",
                  "Buildgraph=",
                  "Graph_Width=",
                  "QrCode=",
                  "Bar;",
                  "nobar",
                  "DEF",
                  "Open=<",
                  "Close=>",
                  "\x01",
                  "\x02",
                  "<",
                  ">",
                  "AnyLine=",
                  "c=",
                  "s=",
                  "SubSectionHeight=",
                  "$Col_01=5",
                  "KEXVER=4",
                  "[HEADER]",
                  "text",
                  "{}",
                  "};{"});
    }
  }
  return text;
}

void TemplateGenerator::RandomSettings(DocumentSettings& settings) {
  settings[Setting::KEXVER] = "4";
  // What the reader makes of a named paper.
  const Paper paper = *LookupPaper(settings[Setting::PAPERSIZE]);
  settings[Setting::PAGEWIDTH] = FormatNumber(paper.Width);
  settings[Setting::PAGELENGHT] = FormatNumber(paper.Length);
  if (Chance(50)) settings[Setting::Spacing] = Of({"100", "250", "333"});
  if (Chance(30)) settings[Setting::Report_Title] = Text();
  if (Chance(30)) settings[Setting::LM] = "12.5";
  if (Chance(20)) {
    settings[Setting::Open] = "<";
    settings[Setting::Close] = ">";
  }
}

void TemplateGenerator::RandomState(AttributeState& state) {
  const auto flag = [this](int percent) { return ToFlag(Chance(percent)); };
  state.AttrPrint = flag(80);
  state.AttrAtg = Chance(50) ? 1 : 0;
  state.AttrMBeu = Chance(50) ? 1 : 0;
  state.AttrAlign = Of({"L", "R", "C"});
  state.AttrBold = flag(30);
  state.AttrItalic = flag(30);
  state.AttrUnderline = flag(30);
  state.AttrFormat = Of({"", "", "0.00", "dd/mm"});
  state.AttrFontName = Of({"Arial", "Courier New", "Times New Roman"});
  state.AttrSize = 6 + Below(20);
  state.AttrCharSet = Of({"0", "161", "238"});
  state.AttrColor = Chance(30) ? kev::Colour{static_cast<std::int16_t>(Below(16)), -1, -1}
                               : kev::Colour{static_cast<std::int16_t>(Below(256)),
                                             static_cast<std::int16_t>(Below(256)), 9};
  state.AttrCase = Of({"N", "U", "L", "F"});
  state.AttrValueType = Of({"General", "Number", "Text"});
  state.AttrLineWidth = Below(5);
  state.AttrRotation = Chance(30) ? 90 : 0;
  state.AttrBarHeight = 100 + Below(900);
  state.AttrBarWidth = 1 + Below(10);
  constexpr int kSymbologies[] = {1, 8, 13, 250, 251, 252, 1282, 1283};
  state.AttrSymbology = kSymbologies[Below(8)];
  state.AttrQrX = Position();
  state.AttrQrSize = Number(900);
  state.AttrX = Chance(10) ? "0" : Position();
  state.AttrStretch.reset();
  if (Chance(20)) state.AttrStretch = Number(900);
  state.TextBoxProps =
      "285," + state.AttrFontName + ",9,,," + Of({"", "1"}) + ",1,2,3,4,-1,-1," + Of({"", "2.5"});
}

NewObject TemplateGenerator::RandomObject(AttributeState& state) {
  constexpr ObjectKind kKinds[] = {ObjectKind::Command, ObjectKind::Box,     ObjectKind::Chart,
                                   ObjectKind::Line,    ObjectKind::Circle,  ObjectKind::AnyLine,
                                   ObjectKind::Picture, ObjectKind::Barcode, ObjectKind::Qr,
                                   ObjectKind::Label,   ObjectKind::TextBox, ObjectKind::Label};
  NewObject object;
  object.kind = kKinds[Below(12)];
  object.xValue = object.kind == ObjectKind::Label ? state.AttrX : Position();
  object.widthOrEndX = object.kind == ObjectKind::Line ? Position() : Number(4000);
  object.height = Number(900);
  object.filled = Chance(50);
  object.extra = Of({"0", "1"});
  object.text = object.kind == ObjectKind::Command   ? std::string(kPageBreak)
                : object.kind == ObjectKind::TextBox ? Of({"", "text"})
                                                     : Text();
  object.path = "pictures\\a.png";
  object.format = state.AttrFormat;
  object.payload = Of({"", "@V"});
  if (object.kind == ObjectKind::Label || object.kind == ObjectKind::Picture)
    object.link = Of({"", "http://a"});
  if (object.kind == ObjectKind::Chart) {
    ChartDefinition chart;
    chart.ReadChartKey("GRAPH_TYPE", Of({"2D", "3D", "PIE"}));
    chart.ReadChartKey("GRAPH_SERIE_2_NAME", Word());
    chart.ReadChartKey("GRAPH_SHOWSERIESTITLES", Of({"Y", "N"}));
    chart.ReadChartKey(Of({"GRAPH_BACKGROUND", "GRAPH_BACKGROUND_PICTURE"}), "1,2,3,4,5,6");
    chart_ = chart.Values;
    object.chartValues = chart_;
  }
  return object;
}

Document TemplateGenerator::SaneDocument() {
  Document document;
  RandomSettings(document.Settings);
  document.Columns[1] = {"$Col_01", 1000, ""};
  document.Columns[2] = {"$Col_02", 2500.5, ""};
  const BuiltInMeasurer measurer;
  NoPictures pictures;
  AttributeState state;
  LayoutCursor cursor;
  CreationContext context{document, state, cursor, measurer, pictures, 1, {}};
  for (const std::string_view section : {"[HEADER]", "[FOOTER]", "[DATA]"}) {
    for (int bars = 1 + Below(3), n = 0; n < bars; ++n) {
      NewObject bar;
      bar.kind = ObjectKind::Subsection;
      bar.sectionName = section;
      bar.title = n == 0 ? std::string(section) : "[Sub " + std::to_string(++names_) + Of({"]", ":a]"});
      const int barRow = AddObject(context, bar);
      if (Chance(20)) {
        ObjectRecord& record = document.Objects[barRow];
        record.StartY = "700";
        record.Content = ContentOfBar(record);
      }
      if (Chance(20)) document.Objects[barRow].HeightGiven = kTrue;
      int pageBreakY = -1;
      for (int objects = Below(8); objects > 0; --objects) {
        const int step = Chance(40) ? 0 : Chance(50) ? document.Settings.SpacingTwips() : Below(900);
        cursor.CursorY += step;
        cursor.SurfaceY += step;
        cursor.SubsectionMaxY = cursor.CursorY;
        RandomState(state);
        const NewObject object = RandomObject(state);
        if (object.kind == ObjectKind::Command) pageBreakY = cursor.CursorY;
        AddObject(context, object);
      }
      // A page break at the end of a subsection makes the last step by itself.
      if (pageBreakY == cursor.CursorY) {
        cursor.LastCommand = kPageBreak;
      } else {
        cursor.CursorY += 10;
        cursor.SubsectionMaxY = cursor.CursorY + Below(2) * 300;
      }
      NewObject end;
      end.kind = ObjectKind::EndOfSubsection;
      end.extra = std::to_string(barRow);
      AddObject(context, end);
    }
  }
  return document;
}

}  // namespace kev::test
