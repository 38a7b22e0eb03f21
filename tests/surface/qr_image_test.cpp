// SPDX-License-Identifier: MIT
#include "surface/qr_image.h"

#include <gmock/gmock.h>

#include "support/page_fixture.h"

namespace kev {
namespace {

using testing::ElementsAre;

// Gives what it was told, and keeps what it was asked.
class GivenQrPictures final : public QrPictures {
 public:
  bool Ready = false;
  std::vector<std::string> Asked, Made;
  std::function<void()> OnMake;

  bool IsReady(int row, const ObjectRecord& record, const std::string& file) override {
    Asked.push_back(std::to_string(row) + " " + record.Content + " " + file);
    return Ready;
  }
  void Make(int row, const ObjectRecord& record, const std::string& file) override {
    Made.push_back(std::to_string(row) + " " + record.Content + " " + file);
    if (OnMake) OnMake();
  }
};

class QrImageTest : public test::PageFixture {
 protected:
  QrImageTest() {
    row_ = Add(ObjectKind::Qr, "1000", 2000, 800, 800);
    Record(row_).Y = 1600;
    Record(row_).Content = "text";
    file_ = "/t\\" + std::to_string(row_) + "_1600.bmp";
  }
  PageWork Work() {
    PageWork work = page_.Work();
    work.pictures.Qr = &pictures_;
    return work;
  }
  bool Make(int row) {
    PageWork work = Work();
    return MakeQrImage(work, row);
  }
  std::string Painted(double zoom = 1) {
    PaintContext context{page_.document,     page_.canvas, page_.measurer, zoom,
                         DisplayFilter::All, 12000,        {"/t", 7},      {&pictures_, nullptr}};
    page_.canvas.Lines.clear();
    PaintObject(context, row_);
    return page_.canvas.Take();
  }

  GivenQrPictures pictures_;
  int row_ = 0;
  std::string file_;
};

// --- Names and commands

TEST(QrTools, GetTheJoinedNameAndThenTheText) {
  const QrImageFiles files = QrFilesOf("/t e\\mp\\3_1200.bmp");
  EXPECT_EQ(files.Base, "/t e\\mp/3_1200");
  EXPECT_EQ(files.Png, "/t e\\mp/3_1200.png");
  EXPECT_EQ(files.Bitmap, "/t e\\mp/3_1200.bmp");
  const auto tools = QrTools("/program", files, "-a \"$(b)\";\n'");
  EXPECT_EQ(tools[0].Program, "/program/qrcode");
  EXPECT_THAT(tools[0].Arguments, ElementsAre("-o/t e\\mp/3_1200.png", "-a \"$(b)\";\n'"));
  EXPECT_EQ(tools[1].Program, "/program/png2bmp");
  EXPECT_THAT(tools[1].Arguments, ElementsAre("/t e\\mp/3_1200.png", "/t e\\mp/3_1200.bmp"));
}

TEST(QrTools, KeepImagesOfRowAndPlaceApart) {
  EXPECT_NE(QrFilesOf(QrImageName({"/t", 1}, 3, 1200)).Base, QrFilesOf(QrImageName({"/t", 1}, 31, 200)).Base);
  EXPECT_EQ(QrFilesOf(QrImageName({"/t", 1}, 3, -50)).Base, "/t/3_-50");
}

// --- Making

TEST_F(QrImageTest, IsMadeForItsRowAndNamedThere) {
  EXPECT_TRUE(Make(row_));
  EXPECT_THAT(pictures_.Made, ElementsAre(std::to_string(row_) + " text " + file_));
  EXPECT_EQ(Record(row_).PictureFile, file_);
}

TEST_F(QrImageTest, IsNamedEvenWhereNobodyMakesIt) {
  PageWork work = page_.Work();
  EXPECT_TRUE(MakeQrImage(work, row_));
  EXPECT_EQ(Record(row_).PictureFile, file_);
}

TEST_F(QrImageTest, IsMadeOfNoOtherKind) {
  const int box = Add(ObjectKind::Box, "1", 2000, 10, 10);
  EXPECT_FALSE(Make(box));
  EXPECT_TRUE(pictures_.Made.empty());
  EXPECT_EQ(Record(box).PictureFile, "");
}

TEST_F(QrImageTest, IsForgottenWhereItsObjectWasTakenAwayMeanwhile) {
  pictures_.OnMake = [this] { Record(row_) = ObjectRecord{}; };
  EXPECT_FALSE(Make(row_));
  EXPECT_EQ(Record(row_).PictureFile, "");
}

// --- Painting

TEST_F(QrImageTest, IsPaintedSharpOnceItIsReady) {
  EXPECT_EQ(Painted(), "foreground 000000\n");
  pictures_.Ready = true;
  EXPECT_EQ(Painted(0.5), "foreground 000000\nsharp 500 1000 400 400 " + file_ + "\n");
  EXPECT_EQ(Record(row_).PictureFile, file_) << "also where no image is there";
  EXPECT_THAT(pictures_.Asked, ElementsAre(std::to_string(row_) + " text " + file_, testing::_));
}

TEST_F(QrImageTest, IsNotColouredByItsColourRow) {
  pictures_.Ready = true;
  const std::string black = Painted();
  Record(row_).ColorR = 255;
  EXPECT_EQ(Painted(), "foreground FF0000\n" + black.substr(black.find("sharp")));
}

}  // namespace
}  // namespace kev
