// SPDX-License-Identifier: MIT
#include "platform/rulers.h"

#include <gtest/gtest.h>

#include <QScreen>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <algorithm>
#include <cmath>

#include "base/numbers.h"
#include "platform/forms/page_frame.h"
#include "platform/qt_measurer.h"
#include "support/sample_page.h"

namespace kev {
namespace {

constexpr QRgb kRed = 0xFFFF0000;
constexpr QRgb kWhitePixel = 0xFFFFFFFF;
constexpr QRgb kMarkPixel = 0xFF6E7781;

// A page of two bodies, with red lines where the rulers have long marks.
class RulersOnScreenTest : public testing::Test {
 protected:
  RulersOnScreenTest() { frame_.resize(700, 500); }

  void ShowPage(double zoom, int mode, double leftMargin = 0) {
    document_ = Document();
    document_.Settings[Setting::PAPERSIZE] = "(custom)";
    document_.Settings[Setting::PAGEWIDTH] = "12240";
    document_.Settings[Setting::LM] = FormatNumber(leftMargin);
    test::AddSubsection(document_, "[HEADER]", 0, 5000);
    test::AddSubsection(document_, "[DATA]", 5580, bodyHeight_);
    plan_ = PlanRulers(document_, zoom, QtMeasurer(fonts_));
    DrawPage(mode);
    frame_.ShowRulers(document_, zoom, mode);
    canvas_->ShowList();
    frame_.show();
    QCoreApplication::processEvents();
  }
  void DrawPage(int mode) {
    const double zoom = plan_.ZoomFactor;
    const double step = ScaleOf(mode).Step * 10 * zoom;
    list_.ClearCanvas();
    list_.SetCanvasSize((plan_.PageWidth + plan_.LeftMargin) * zoom, (6980 + bodyHeight_) * zoom);
    list_.SetScaleLeft(-plan_.LeftMargin * zoom);
    list_.SetPen(0xFF0000, 1, PenStyle::Solid);
    for (double x = step; x <= plan_.PageWidth * zoom; x += step)
      list_.DrawLine(x, 0, x, list_.Canvas().height());
    for (const RulerPart& part : plan_.Parts)
      for (double y = step; y < part.Height && y < 20000 * zoom; y += step)
        list_.DrawLine(0, part.Top + y, plan_.PageWidth * zoom, part.Top + y);
  }
  Ruler& Find(const char* name) { return *frame_.findChild<Ruler*>(QString::fromLatin1(name)); }

  // Along the ruler, in pixels of the frame, the places where a colour stands in a line of its picture.
  static std::vector<int> Places(const QImage& picture, QRgb colour, bool vertical, int across) {
    std::vector<int> found;
    const int length = vertical ? picture.height() : picture.width();
    for (int i = 0; i < length; ++i)
      if ((vertical ? picture.pixel(across, i) : picture.pixel(i, across)) == colour) found.push_back(i);
    return found;
  }
  // Long marks alone reach so far; the numbers begin at 220 units.
  static constexpr int kAcrossLongMark = 10;

  // The marks of both rulers stand where the page has its lines.
  void ExpectAligned() {
    const QImage page = canvas_->viewport()->grab().toImage();
    ExpectAligned(Places(Find("rhor").grab().toImage(), kMarkPixel, false, kAcrossLongMark),
                  Places(page, kRed, false, FreeRow(page)));
    ExpectAligned(Places(Find("rverint").grab().toImage(), kMarkPixel, true, kAcrossLongMark),
                  Places(page, kRed, true, FreeColumn(page)));
  }

  FontCache fonts_;
  ImageCache images_{[](std::string_view) { return std::string(); }};
  DisplayList list_{fonts_, images_};
  // Ends in its frame.
  PageCanvas* canvas_ = new PageCanvas(list_);
  DesignerOptions options_;
  LanguageTexts texts_;
  PageFrame frame_{*canvas_, fonts_, options_, texts_};
  Document document_;
  RulerPlan plan_;
  int bodyHeight_ = 9000;
  // Lines of the page that ExpectAligned has looked at.
  int compared_ = 0;

 private:
  // Middle and long marks both reach across; the page has lines at the long ones.
  void ExpectAligned(const std::vector<int>& marks, const std::vector<int>& lines) {
    for (const int line : lines)
      EXPECT_TRUE(std::count(marks.begin(), marks.end(), line) == 1) << "no mark at pixel " << line;
    compared_ += static_cast<int>(lines.size());
  }
  // A row or column of the page where no line runs along.
  static int FreeRow(const QImage& page) {
    for (int y = page.height() / 2; y < page.height(); ++y)
      if (Places(page, kRed, false, y).size() < 60) return y;
    return -1;
  }
  static int FreeColumn(const QImage& page) {
    for (int x = page.width() / 2; x < page.width(); ++x)
      if (Places(page, kRed, true, x).size() < 60) return x;
    return -1;
  }
};

TEST_F(RulersOnScreenTest, StandBesideThePageInPixels) {
  ShowPage(1, 1);
  const Ruler& rhor = Find("rhor");
  const Ruler& rverint = Find("rverint");
  EXPECT_EQ(rhor.pos().x(), canvas_->pos().x());
  EXPECT_EQ(rverint.pos().y(), canvas_->pos().y());
  EXPECT_EQ(rhor.geometry().bottom() + 1, canvas_->pos().y());
  EXPECT_EQ(rverint.geometry().right() + 1, canvas_->pos().x());
  EXPECT_EQ(rhor.width(), canvas_->width());
  EXPECT_EQ(rverint.height(), canvas_->height());
}

TEST_F(RulersOnScreenTest, LineUpWithThePageAtEveryZoomAndScrollPlace) {
  for (const int mode : {1, 2, 3}) {
    for (const double zoom : {0.5, 0.75, 1.0, 1.33, 2.0, 4.0}) {
      for (const double margin : {0.0, 567.0}) {
        ShowPage(zoom, mode, margin);
        for (const int scroll : {0, 37, 411}) {
          SCOPED_TRACE("mode " + std::to_string(mode) + " zoom " + std::to_string(zoom) + " margin " +
                       std::to_string(margin) + " scroll " + std::to_string(scroll));
          canvas_->horizontalScrollBar()->setValue(scroll);
          canvas_->verticalScrollBar()->setValue(scroll);
          ExpectAligned();
        }
        canvas_->horizontalScrollBar()->setValue(0);
        canvas_->verticalScrollBar()->setValue(0);
      }
    }
  }
  EXPECT_GT(compared_, 1000);
}

TEST_F(RulersOnScreenTest, AreWhiteOverPageAndBodiesAlone) {
  ShowPage(1, 1);
  const QImage column = Find("rverint").grab().toImage();
  const auto at = [&](double y) { return column.pixel(1, canvas_->ToViewport({0, y}).toPoint().y()); };
  EXPECT_NE(at(300), kWhitePixel);
  EXPECT_EQ(at(450), kWhitePixel);
  EXPECT_EQ(at(5350), kWhitePixel);
  EXPECT_NE(at(5700), kWhitePixel);
  EXPECT_EQ(at(6100), kWhitePixel);
  const QImage row = Find("rhor").grab().toImage();
  EXPECT_NE(row.pixel(3, 1), kWhitePixel);
  EXPECT_EQ(row.pixel(canvas_->ToViewport({30, 0}).toPoint().x(), 1), kWhitePixel);
}

// What stands in the window, not what a new paint of the widget would give.
TEST_F(RulersOnScreenTest, ScrollingShowsTheSameAsPaintingAnew) {
  ShowPage(2, 3, 300);
  QTest::mouseMove(canvas_->viewport(), QPoint(150, 120));
  for (const int by : {1, 60, 200, -30, 3000, -120}) {
    canvas_->verticalScrollBar()->setValue(canvas_->verticalScrollBar()->value() + by);
    canvas_->horizontalScrollBar()->setValue(canvas_->horizontalScrollBar()->value() + by / 4);
    QCoreApplication::processEvents();
    const QImage shown = frame_.screen()->grabWindow(frame_.winId()).toImage();
    ASSERT_EQ(shown.size(), frame_.size());
    for (const char* name : {"rhor", "rverint"}) {
      const QImage anew = Find(name).grab().toImage();
      EXPECT_EQ(shown.copy(Find(name).geometry()).convertToFormat(anew.format()), anew)
          << name << " by " << by;
    }
    ExpectAligned();
  }
  EXPECT_GT(compared_, 50);
}

TEST_F(RulersOnScreenTest, HoldNoMoreThanWhatIsNearTheView) {
  bodyHeight_ = 800000;
  ShowPage(1, 3);
  canvas_->verticalScrollBar()->setValue(30000);
  QCoreApplication::processEvents();
  EXPECT_LT(Find("rverint").Count(), 2500U);
  EXPECT_GT(Find("rverint").Count(), 500U);
  const QImage column = Find("rverint").grab().toImage();
  EXPECT_GT(Places(column, kMarkPixel, true, kAcrossLongMark).size(), 10U);
}

TEST_F(RulersOnScreenTest, ADoubleClickAsksForTheNextUnit) {
  ShowPage(1, 1);
  const QSignalSpy wanted(&frame_, &PageFrame::NextRulerModeWanted);
  QTest::mouseDClick(&Find("rhor"), Qt::LeftButton);
  EXPECT_EQ(wanted.count(), 1);
  QTest::mouseDClick(&Find("rhor"), Qt::RightButton);
  QTest::mouseDClick(&Find("rverint"), Qt::LeftButton);
  EXPECT_EQ(wanted.count(), 1);
}

TEST_F(RulersOnScreenTest, TheRightButtonTellsItsPlaceOnThePage) {
  ShowPage(2, 1, 567);
  canvas_->horizontalScrollBar()->setValue(50);
  std::vector<PagePointer> told;
  QObject::connect(&frame_, &PageFrame::RulerPointer,
                   [&](const PagePointer& event) { told.push_back(event); });
  const QPoint at(200, 5);
  QTest::mouseClick(&Find("rhor"), Qt::RightButton, Qt::NoModifier, at);
  QTest::mouseClick(&Find("rhor"), Qt::LeftButton, Qt::NoModifier, at);
  ASSERT_EQ(told.size(), 2U);
  EXPECT_EQ(told[0].action, PagePointer::Action::Press);
  EXPECT_EQ(told[1].action, PagePointer::Action::Release);
  EXPECT_EQ(told[1].button, Qt::RightButton);
  EXPECT_NEAR(told[1].canvas.x(), canvas_->ToCanvas(at).x(), 1e-6);
  EXPECT_TRUE(frame_.IsOverRuler(Find("rhor").mapToGlobal(at)));
  EXPECT_FALSE(frame_.IsOverRuler(canvas_->mapToGlobal(at)));
}

TEST_F(RulersOnScreenTest, AMarkerFollowsThePointer) {
  ShowPage(1, 1);
  const QRgb marker = frame_.palette().color(QPalette::Highlight).rgb();
  QTest::mouseMove(canvas_->viewport(), QPoint(123, 77));
  QCoreApplication::processEvents();
  EXPECT_EQ(Places(Find("rhor").grab().toImage(), marker, false, 2), std::vector<int>{123});
  EXPECT_EQ(Places(Find("rverint").grab().toImage(), marker, true, 1), std::vector<int>{77});
  QEvent leave(QEvent::Leave);
  QCoreApplication::sendEvent(canvas_->viewport(), &leave);
  EXPECT_TRUE(Places(Find("rhor").grab().toImage(), marker, false, 2).empty());
  EXPECT_TRUE(Places(Find("rverint").grab().toImage(), marker, true, 1).empty());
}

TEST_F(RulersOnScreenTest, TheSamePlanIsNotBuiltAgain) {
  ShowPage(1, 1);
  const std::size_t before = Find("rhor").Count();
  frame_.ShowRulers(document_, 1, 1);
  EXPECT_EQ(Find("rhor").Count(), before);
  frame_.ShowRulers(document_, 1, 3);
  EXPECT_NE(Find("rhor").Count(), before);
}

}  // namespace
}  // namespace kev
