// SPDX-License-Identifier: MIT
// Whatever the texts of a chart are, its shapes lie inside the picture, hold finite numbers only, and no text
// touches another.
#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "chart/chart_look.h"
#include "chart/graph.h"

namespace kev {
namespace {

using test::LookWith;
using test::Only;

constexpr double kSlack = 1e-6;

void ExpectInside(const std::vector<ChartPoint>& points, const ChartPicture& picture, const char* what) {
  for (const ChartPoint& point : points) {
    ASSERT_TRUE(std::isfinite(point.X) && std::isfinite(point.Y)) << what;
    ASSERT_GE(point.X, -kSlack) << what;
    ASSERT_GE(point.Y, -kSlack) << what;
    ASSERT_LE(point.X, picture.Width + kSlack) << what;
    ASSERT_LE(point.Y, picture.Height + kSlack) << what;
  }
}

// A line along one of the sides of `a` parts it from `b`.
bool Parted(const std::array<ChartPoint, 4>& a, const std::array<ChartPoint, 4>& b) {
  for (std::size_t side = 0; side < 4; ++side) {
    const ChartPoint from = a[side], to = a[(side + 1) % 4];
    const bool apart = std::all_of(b.begin(), b.end(), [&](const ChartPoint& point) {
      return (to.X - from.X) * (point.Y - from.Y) - (to.Y - from.Y) * (point.X - from.X) <= kSlack;
    });
    if (apart) return true;
  }
  return false;
}

void ExpectSound(const ChartPicture& picture) {
  for (const ChartPolygon& polygon : Only<ChartPolygon>(picture))
    ExpectInside(polygon.Points, picture, "polygon");
  for (const ChartPolyline& line : Only<ChartPolyline>(picture))
    ExpectInside(line.Points, picture, "line");
  const std::vector<ChartText> texts = Only<ChartText>(picture);
  std::vector<std::array<ChartPoint, 4>> boxes;
  for (const ChartText& text : texts) {
    const auto corners = CornersOf(text);
    ExpectInside({corners.begin(), corners.end()}, picture, text.Text.c_str());
    boxes.push_back(corners);
  }
  for (std::size_t a = 0; a < boxes.size(); ++a)
    for (std::size_t b = a + 1; b < boxes.size(); ++b)
      ASSERT_TRUE(Parted(boxes[a], boxes[b]) || Parted(boxes[b], boxes[a]))
          << texts[a].Text << " over " << texts[b].Text;
}

class Dice {
 public:
  explicit Dice(unsigned seed) : random_(seed) {}

  int Below(int count) { return std::uniform_int_distribution<int>(0, count - 1)(random_); }
  std::string One(const std::vector<std::string>& some) {
    return some[static_cast<std::size_t>(Below(static_cast<int>(some.size())))];
  }
  std::string Value() {
    return One({std::to_string(Below(1000)), std::to_string(-Below(1000)), "0", "", "1e300", "-1e300",
                "1e-300", "nan", "inf", "x", "3.25", "  7 ", "1e999", "12345678", "-0"});
  }
  std::string List(int most, const std::function<std::string()>& make) {
    std::string list;
    for (int n = Below(most + 1); n >= 0; --n)
      list += make() + (n > 0 ? "," : "");
    return list;
  }

 private:
  std::mt19937 random_;
};

ChartLook RandomLook(Dice& dice) {
  ChartLook look = LookWith({{"Graph_Type", dice.One({"2D", "3D", "PIE", "pie", "?"})},
                             {"Graph_series", std::to_string(dice.Below(10))},
                             {"Graph_AxisStyle", std::to_string(dice.Below(6))},
                             {"Graph_ShowAxis", dice.One({"Y", "N"})},
                             {"Graph_ShowAxisBackGround", dice.One({"Y", "N"})},
                             {"Graph_ShowSeriesTitles", dice.One({"Y", "N"})},
                             {"Graph_Title", dice.One({"", "Title", std::string(200, 'm')})},
                             {"Graph_Title_FontSize", dice.One({"8", "20", "-3", "x", "900"})},
                             {"Graph_Layout_FontSize", dice.One({"", "7", "12", "40"})},
                             {"Graph_ShowValuesFontSize", dice.One({"8", "", "30", "2"})}});
  const auto set = [&](const std::string& key, const std::string& value) {
    look.Values[*ChartKeyIndex(CodePage::Default().Upper(key))] = value;
  };
  const int most = dice.One({"1", "6", "12", "60"}) == "60" ? 60 : dice.Below(12);
  set("Graph_Layout_Values", dice.List(most, [&] {
    return dice.One({"A", "January", "", "A label that is much too long for its place"});
  }));
  for (int n = 1; n <= 8; ++n) {
    const std::string stem = "Graph_serie_" + std::to_string(n) + "_";
    set(stem + "type", dice.One({"BarFlat", "BARROUND", "BarSquared", "Line", "Area", "Bar"}));
    set(stem + "name", dice.One({"", "North", "A series with a long name"}));
    set(stem + "ShowValues", dice.One({"Y", "N"}));
    set(stem + "values", dice.List(most, [&] { return dice.Value(); }));
  }
  look.Width = dice.Below(3) == 0 ? dice.Below(60) : dice.Below(1200);
  look.Height = dice.Below(3) == 0 ? dice.Below(60) : dice.Below(900);
  return look;
}

TEST(ChartShapes, AreSoundForRandomCharts) {
  for (unsigned seed = 1; seed <= 1500; ++seed) {
    Dice dice(seed);
    const ChartLook look = RandomLook(dice);
    const ChartPicture picture = LayOutChart(look, BuiltInMeasurer());
    ExpectSound(picture);
    if (testing::Test::HasFatalFailure()) {
      FAIL() << "seed " << seed << ", " << look.Values[0] << ", " << look.Width << " x " << look.Height;
    }
  }
}

TEST(ChartShapes, AreSoundAtEverySizeFromNothingUpwards) {
  for (const char* type : {"2D", "3D", "PIE"}) {
    for (const double side :
         {-5.0, 0.0, 0.01, 1.0, 3.0, 7.9, 8.0, 9.0, 15.0, 24.0, 40.0, 80.0, 1000.0, 1e5, 1e9}) {
      for (const double other : {0.5, 8.0, 30.0, 300.0, 1e7}) {
        const ChartLook look = LookWith({{"Graph_Type", type},
                                         {"Graph_Title", "Title"},
                                         {"Graph_ShowSeriesTitles", "Y"},
                                         {"Graph_Layout_Values", "@"},
                                         {"Graph_serie_1_name", "Series"}},
                                        side, other);
        ExpectSound(LayOutChart(look, BuiltInMeasurer()));
        ASSERT_FALSE(testing::Test::HasFatalFailure()) << type << ' ' << side << " x " << other;
      }
    }
  }
  EXPECT_TRUE(LayOutChart(LookWith({}, 0, 100), BuiltInMeasurer()).Shapes.empty());
  EXPECT_TRUE(LayOutChart(LookWith({}, NAN, INFINITY), BuiltInMeasurer()).Shapes.empty());
}

TEST(ChartShapes, AreFewForThousandsOfValues) {
  std::string values = "1";
  for (int n = 0; n < 100000; ++n)
    values += ",2";
  const ChartPicture picture = LayOutChart(LookWith({{"Graph_serie_1_values", values}}), BuiltInMeasurer());
  ExpectSound(picture);
  EXPECT_LT(picture.Shapes.size(), 3000U);
}

}  // namespace
}  // namespace kev
