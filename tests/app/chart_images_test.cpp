// SPDX-License-Identifier: MIT
#include "app/chart_images.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <stdexcept>

#include "app/designer_fixture.h"
#include "base/files.h"
#include "chart/slots.h"

namespace kev {
namespace {

using test::TemplateWith;
using testing::ElementsAre;

class ScriptedPainter final : public ChartPainter {
 public:
  struct Saved {
    ChartPicture Picture;
    double Scale;
    std::string Path;
  };
  std::vector<Saved> Saves;
  std::vector<int> Pointers;
  double Ratio = 1;
  bool Fails = false, Throws = false;

  double DeviceRatio() const override { return Ratio; }
  bool SaveChart(const ChartPicture& picture, double scale, const std::string& path) override {
    if (Throws) throw std::runtime_error("out of ink");
    Saves.push_back({picture, scale, path});
    return !Fails && !WritePlainFile(path, "bitmap");
  }
  void ShowPointer(int number) override { Pointers.push_back(number); }

  std::size_t Take() {
    const std::size_t count = Saves.size();
    Saves.clear();
    return count;
  }
};

class ChartImagesTest : public test::DesignerTest {
 protected:
  ChartImagesTest() {
    designer_ = Start({Made("a.kev", TemplateWith("{Graph_Width=3000;Graph_Height=1500}\r\n"
                                                  "{Graph_serie_1_values=@sales}\r\n{Buildgraph=100,}\r\n"
                                                  "{Graph_Width=1000;Graph_Height=800}\r\n"
                                                  "{Graph_Type=PIE}\r\n{Buildgraph=4000,}\r\n"))});
    designer_->Charts().SetPainter(&painter_);
    designer_->DeriveGeometryAndRedraw();
    for (int row = 1; row <= Objects().LastScanned(); ++row)
      if (Objects()[row].Kind == ObjectKind::Chart) rows_.push_back(row);
  }

  ObjectTable& Objects() { return designer_->OpenDocument().Objects; }
  ObjectRecord& Chart(std::size_t n) { return Objects()[rows_.at(n)]; }
  std::string File(std::size_t n) {
    return Temp(ChartImageName({"", designer_->SessionNumber()}, rows_.at(n)).substr(1));
  }
  std::size_t Redrawn() {
    painter_.Take();
    designer_->Surface().Redraw();
    return painter_.Take();
  }

  ScriptedPainter painter_;
  std::unique_ptr<Designer> designer_;
  std::vector<int> rows_;
};

TEST_F(ChartImagesTest, TheFirstPaintMakesEachImageAtItsSize) {
  ASSERT_EQ(rows_.size(), 2U);
  ASSERT_EQ(painter_.Saves.size(), 2U);
  EXPECT_EQ(painter_.Saves[0].Path, File(0));
  EXPECT_EQ(painter_.Saves[0].Scale, 1);
  EXPECT_EQ(painter_.Saves[0].Picture.Width, 200);
  EXPECT_EQ(painter_.Saves[0].Picture.Height, 100);
  EXPECT_EQ(Chart(0).PictureFile, ChartImageName(designer_->Images(), rows_[0]));
  EXPECT_TRUE(FileExists(File(0)));
  EXPECT_TRUE(view_.Page.Has("image 100 "));
}

TEST_F(ChartImagesTest, AnImageThatFitsIsUsedAgain) {
  EXPECT_EQ(Redrawn(), 0U);
  EXPECT_EQ(Redrawn(), 0U);
}

TEST_F(ChartImagesTest, IsMadeAnewWhenItIsMissing) {
  std::filesystem::remove(File(1));
  EXPECT_EQ(Redrawn(), 1U);
  EXPECT_TRUE(FileExists(File(1)));
  EXPECT_EQ(Redrawn(), 0U);
}

TEST_F(ChartImagesTest, AFileOfAnotherRunIsNotTaken) {
  designer_->Charts().FlagAll();
  EXPECT_EQ(Redrawn(), 2U);
}

TEST_F(ChartImagesTest, IsMadeAnewWhenValuesOrSizeChange) {
  Chart(0).ChartValues[slot::kTitle] = "New";
  EXPECT_EQ(Redrawn(), 1U);
  Chart(1).Width += 15;
  EXPECT_EQ(Redrawn(), 1U);
  Chart(1).Height += 15;
  EXPECT_EQ(Redrawn(), 1U);
  // Where it stands makes no difference.
  Chart(1).XValue = "5000";
  Chart(1).Y += 10;
  EXPECT_EQ(Redrawn(), 0U);
}

TEST_F(ChartImagesTest, FollowsTheZoomAndTheResolution) {
  painter_.Take();
  EXPECT_TRUE(designer_->SetZoom("200%"));
  ASSERT_EQ(painter_.Saves.size(), 2U);
  EXPECT_EQ(painter_.Saves[0].Scale, 2);
  EXPECT_EQ(painter_.Saves[0].Picture.Width, 200);
  painter_.Ratio = 1.5;
  EXPECT_EQ(Redrawn(), 2U);
  designer_->SetZoom("100%");
  ASSERT_EQ(painter_.Saves.size(), 2U);
  EXPECT_EQ(painter_.Saves[0].Scale, 1.5);
}

TEST_F(ChartImagesTest, FollowsItsBackgroundPicture) {
  const std::string picture = Made("back.png", "one");
  Chart(0).ChartValues[slot::kBackGroundPicture] = "back.png";
  EXPECT_EQ(Redrawn(), 1U);
  EXPECT_EQ(Redrawn(), 0U);
  std::filesystem::last_write_time(picture,
                                   std::filesystem::last_write_time(picture) + std::chrono::hours(1));
  EXPECT_EQ(Redrawn(), 1U);
  std::filesystem::remove(picture);
  EXPECT_EQ(Redrawn(), 1U);
}

TEST_F(ChartImagesTest, UndoAndRedoMakeAllAnew) {
  designer_->Surface().PushUndo();
  Chart(0).ChartValues[slot::kTitle] = "Changed";
  designer_->Surface().FullRepaint();
  painter_.Take();
  EXPECT_TRUE(designer_->Run(Command::Undo));
  EXPECT_EQ(painter_.Take(), 2U);
  EXPECT_TRUE(designer_->Run(Command::Redo));
  EXPECT_EQ(painter_.Take(), 2U);
  EXPECT_EQ(Redrawn(), 0U);
}

TEST_F(ChartImagesTest, TheRecordKeepsItsTexts) {
  EXPECT_EQ(Chart(0).ChartValues[slot::OfSeries(1, slot::SeriesPart::Values)], "@sales");
}

TEST_F(ChartImagesTest, RebuildMakesItWhateverIsThere) {
  painter_.Take();
  Chart(1).PictureFile.clear();
  EXPECT_TRUE(designer_->Charts().RebuildChartImage(rows_[1]));
  ASSERT_EQ(painter_.Saves.size(), 1U);
  EXPECT_EQ(painter_.Saves[0].Path, File(1));
  EXPECT_EQ(Chart(1).PictureFile, ChartImageName(designer_->Images(), rows_[1]));
  EXPECT_TRUE(painter_.Pointers.empty());
  EXPECT_EQ(Redrawn(), 0U);
  EXPECT_FALSE(designer_->Charts().RebuildChartImage(0));
  EXPECT_FALSE(designer_->Charts().RebuildChartImage(1));
}

TEST_F(ChartImagesTest, SaveIsForTheCurrentObjectUnderTheWaitPointer) {
  Objects().CurrentObject = rows_[0];
  EXPECT_TRUE(designer_->SetZoom("50%"));
  painter_.Take();
  EXPECT_TRUE(designer_->Charts().SaveChartImage());
  ASSERT_EQ(painter_.Saves.size(), 1U);
  EXPECT_EQ(painter_.Saves[0].Path, File(0));
  EXPECT_EQ(painter_.Saves[0].Scale, 0.5);
  EXPECT_THAT(painter_.Pointers, ElementsAre(11, 0));
}

TEST_F(ChartImagesTest, ThePointerIsRestoredOnEveryWayOut) {
  Objects().CurrentObject = rows_[0];
  painter_.Fails = true;
  EXPECT_FALSE(designer_->Charts().SaveChartImage());
  EXPECT_THAT(painter_.Pointers, ElementsAre(11, 0));
  painter_.Pointers.clear();
  painter_.Throws = true;
  EXPECT_THROW(designer_->Charts().SaveChartImage(), std::runtime_error);
  EXPECT_THAT(painter_.Pointers, ElementsAre(11, 0));
  painter_.Pointers.clear();
  Objects().CurrentObject = 0;
  EXPECT_FALSE(designer_->Charts().SaveChartImage());
  EXPECT_THAT(painter_.Pointers, ElementsAre(11, 0));
}

TEST_F(ChartImagesTest, AChartWithoutAnImageIsFramed) {
  painter_.Fails = true;
  designer_->Charts().FlagAll();
  view_.Page.Take();
  designer_->Surface().Redraw();
  EXPECT_FALSE(view_.Page.Has("image 100 "));
  EXPECT_NE(view_.Page.Take().find("CHART 2D"), std::string::npos);
  painter_.Fails = false;
  EXPECT_EQ(Redrawn(), 2U);
}

TEST_F(ChartImagesTest, ImagesOfThisRunAreDeletedAtItsEndAndNoOthers) {
  test::WriteBytes(Temp("Sc999.bmp"), "of another run");
  designer_->ShutDownSilently();
  EXPECT_FALSE(FileExists(File(0)));
  EXPECT_FALSE(FileExists(File(1)));
  EXPECT_TRUE(FileExists(Temp("Sc999.bmp")));
}

TEST_F(ChartImagesTest, WithoutAWindowChartsAreFrames) {
  designer_->Charts().SetPainter(nullptr);
  EXPECT_EQ(designer_->Made().Charts, nullptr);
  EXPECT_FALSE(designer_->Charts().RebuildChartImage(rows_[0]));
  EXPECT_FALSE(designer_->Charts().SaveChartImage());
  EXPECT_TRUE(painter_.Pointers.empty());
}

}  // namespace
}  // namespace kev
