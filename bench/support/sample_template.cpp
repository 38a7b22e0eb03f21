// SPDX-License-Identifier: MIT
#include "support/sample_template.h"

#include <array>
#include <cstdio>
#include <cstdlib>
#include <vector>

#include "document/sections.h"
#include "document/text_measurer.h"
#include "template/reader.h"

namespace kev::bench {
namespace {

constexpr std::string_view kHead =
    "[CONFIGURATION]\r\nReport_Title=Stock by warehouse\r\nSample_Kex_file=stock.kex\r\nCopies=2\r\n"
    "$Col_01=850\r\n$Col_02=1700\r\n$Col_03=3050\r\n$Col_04=4700\r\n$Col_05=6100\r\n$Col_06=7400\r\n"
    "$Col_07=8700\r\n$Col_08=9780\r\n$Col_09=10400\r\n$Col_10=11050\r\n"
    "DecimalPoint=.\r\nPAPERSIZE=A4\r\nKEXVER=4\r\n";

// Rows between two bars, and the rows that a bar and its end take.
constexpr int kRowsOfSubsection = 40;
constexpr int kRowsOfBand = 2;

// Stands for a digit that differs from object to object.
constexpr char kNumber = '~';

// One object each, in a cycle; about two in three are labels, as in a report.
constexpr auto kObjects = std::to_array<std::string_view>({
    "  {c=232,119,34;s=7;b=y}\r\n  {850} WAREHOUSE ~{}\r\n",
    "  {$Col_02;Text} @ItemCode~{}\r\n",
    "  {c=38,50,56;s=9;b=n}\r\n  {$Col_03} @Description of the item~{}\r\n",
    "  {$Col_06 + 120;Num;Format=#,##0.00} @Price~{}\r\n",
    "  {a=R}\r\n  {$Col_10;Num;Format=#,##0.00} @Total~{}\r\n",
    "  {;W=1;Line=$Col_01,$Col_10}\r\n",
    "  {a=L;i=y}\r\n  {2220} Counted by {Name} on the ~th{}\r\n",
    "  {i=n}\r\n  {7500;Link=https://stock.example/item/~} Open the item{}\r\n",
    "  {c=200,210,214}\r\n  {;W=1;Boxf=7240,,1060,17~}\r\n",
    "  {c=4}\r\n  {4100} Minimum stock~{}\r\n",
    "  {4900} @Minimum~{}\r\n",
    "  {TBProps=285,Arial,8,,,1,0,0,0,255,255,255,;TextBox=$Col_03,,2400,,Notes on @Item~}\r\n",
    "  {c=0,0,0;f=Times New Roman}\r\n  {$Col_05} @Shelf~{}\r\n",
    "  {f=Arial;s=10}\r\n  {$Col_07 - 40} @Unit~{}\r\n",
    "  {W=2;Box=9780,,1200,24~}\r\n",
    "  {$Col_04;BarHeight=400;BarWidth=2;B128B}ITEM~{NoBar}\r\n",
    "  {u=y}\r\n  {$Col_01} Carried over from page ~{}\r\n",
    "  {u=n}\r\n  {6100} @Carried~{}\r\n",
    "  {Pic=item~.png,850,,1150,1150,}\r\n",
    "  {W=1;Circ=5200,,36~}\r\n",
});
// One object in a hundred is a chart, and as many are QR images and slanted lines.
constexpr std::string_view kChart =
    "  {Graph_Height=2400;Graph_Width=4200}\r\n  {Graph_Type=2D}\r\n  {Graph_Title=Stock ~}\r\n"
    "  {Graph_Title_Font=Arial}\r\n  {Graph_Title_FontSize=12}\r\n  {Graph_Title_FontColor=74,40,92}\r\n"
    "  {Graph_series=2}\r\n  {Graph_Layout_Values=Q1,Q2,Q3,Q4}\r\n  {Graph_ShowAxis=Y}\r\n"
    "  {Graph_serie_1_type=BarFlat;Graph_serie_1_color=74,40,92}\r\n  {Graph_serie_1_name=North}\r\n"
    "  {Graph_serie_1_values=120,134,128,15~}\r\n  {Graph_serie_2_name=South}\r\n"
    "  {Graph_serie_2_values=@South}\r\n  {Buildgraph=850,}\r\n";
constexpr std::string_view kQr = "  {QrCode=9000,,900}@Link~{nobar}\r\n";
constexpr std::string_view kEndOfBody = "  {Spacing=320;\\n}\r\n";
constexpr std::string_view kSlanted = "  {W=1;AnyLine=3000,,-240,360,1}\r\n";

std::string_view ObjectText(int number) {
  switch (number % 100) {
    case 23:
      return kQr;
    case 57:
      return kSlanted;
    case 81:
      return kChart;
    default:
      return kObjects[static_cast<std::size_t>(number) % kObjects.size()];
  }
}

class Maker {
 public:
  // The configuration at the head takes the rows of a band as well.
  std::string Make(int rows) {
    text_ = kHead;
    const int part = rows / 10;
    Section("[HEADER]", part);
    Section("[FOOTER]", part);
    Section("[DATA]", rows - 2 * part - kRowsOfBand);
    return std::move(text_);
  }

 private:
  void Section(std::string_view name, int rows) {
    text_.append(name).append("\r\n\r\n");
    for (rows -= kRowsOfBand; rows > kRowsOfSubsection; rows -= kRowsOfSubsection) {
      Objects(kRowsOfSubsection - kRowsOfBand);
      text_ += "\r\n [ITEMS" + std::to_string(++subsections_) + ":@Code,@Name,@Quantity]\r\n\r\n";
    }
    Objects(rows);
  }

  void Objects(int count) {
    text_ += "  {DEF}\r\n";
    for (; count > 0; --count, ++number_) {
      if (number_ % 4 == 0) text_ += number_ % 3 == 0 ? "  {\\n}\r\n" : "  {Spacing=260;\\n}\r\n";
      for (const char c : ObjectText(number_)) {
        if (c == kNumber)
          text_ += std::to_string(number_ % 10);
        else
          text_ += c;
      }
    }
    text_ += kEndOfBody;
  }

  int number_ = 0;
  int subsections_ = 0;
  std::string text_;
};

}  // namespace

std::string SampleTemplate(int rows) {
  return Maker().Make(rows);
}

std::string TallTemplate(int rows) {
  constexpr int kHeight = 800000;
  const std::string text = SampleTemplate(rows);
  std::vector<std::string_view> bodies;
  std::string_view rest = text;
  for (std::size_t end = 0; (end = rest.find(kEndOfBody)) != std::string_view::npos;) {
    bodies.push_back(rest.substr(0, end));
    rest.remove_prefix(end + kEndOfBody.size());
  }
  Document plain = ReadOrAbort(text);
  const int more = kHeight - DeriveGeometry(plain).BottomMost;
  std::string tall;
  for (const std::string_view body : bodies) {
    tall.append(body).append(kEndOfBody);
    tall += "  {Spacing=" + std::to_string(more / static_cast<int>(bodies.size())) + ";\\n}\r\n";
  }
  return tall.append(rest);
}

Document ReadOrAbort(std::string_view bytes) {
  const BuiltInMeasurer measurer;
  NoPictures pictures;
  Result<ReadOutcome> outcome = ReadTemplateBytes(bytes, {measurer, pictures});
  if (outcome) return std::move(outcome->Read);
  std::fprintf(stderr, "the sample template is refused: %s\n", outcome.Error().reason.c_str());
  std::exit(1);
}

Document OpenedSample(int rows) {
  Document document = ReadOrAbort(SampleTemplate(rows));
  const std::size_t occupied = DeriveGeometry(document).Rows.size();
  if (occupied == static_cast<std::size_t>(rows)) return document;
  std::fprintf(stderr, "the sample template of %d rows takes %zu\n", rows, occupied);
  std::exit(1);
}

void CountRows(benchmark::State& state, int rows) {
  const double all = static_cast<double>(rows) * static_cast<double>(state.iterations());
  state.counters["per_object"] =
      benchmark::Counter(all, benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}

}  // namespace kev::bench
