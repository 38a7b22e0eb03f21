// SPDX-License-Identifier: MIT
#include "app/designer.h"

#include <algorithm>
#include <new>
#include <stdexcept>

#include "app/designer_fixture.h"

namespace kev {
namespace {

class Guard : public test::DesignerTest {};

TEST_F(Guard, AFailedCommandIsTakenBackAndTold) {
  const auto designer = Start();
  Document& document = designer->OpenDocument();
  const Document before = document;
  const bool done = designer->Guarded([&] {
    document.Objects[1].Content = "changed";
    document.Objects[2000].Kind = ObjectKind::Label;
    document.Objects.ObjectCount = 2010;
    document.Objects.CurrentObject = 7;
    document.Columns[1].Name = "$Col_01";
    document.Settings[Setting::Report_Title] = "changed";
    document.Columns[101].Name = "$Col_101";
  });
  EXPECT_FALSE(done);
  ExpectMessage(*designer, kTextOperationFailed);
  for (int row = 0; row <= ObjectTable::kLastRow; ++row)
    ASSERT_EQ(document.Objects[row], before.Objects[row]) << row;
  EXPECT_EQ(document.Objects.ObjectCount, before.Objects.ObjectCount);
  EXPECT_EQ(document.Objects.CurrentObject, before.Objects.CurrentObject);
  EXPECT_EQ(document.Columns, before.Columns);
  EXPECT_EQ(document.Settings, before.Settings);
}

TEST_F(Guard, ARefusedEditLeavesTheMark) {
  const auto designer = Start();
  EXPECT_FALSE(designer->Guarded([&] {
    designer->MarkModified();
    throw std::out_of_range("no");
  }));
  EXPECT_TRUE(designer->Modified());
  EXPECT_TRUE(host_.CaptionModified);
}

TEST_F(Guard, FreeRowsAreFoundAgainAfterwards) {
  const auto designer = Start();
  ObjectTable& objects = designer->OpenDocument().Objects;
  const int expected = objects.TakeFreeRow();
  EXPECT_FALSE(designer->Guarded([&] {
    while (true)
      objects[objects.TakeFreeRow()].Kind = ObjectKind::Box;
  }));
  EXPECT_EQ(host_.Messages.at(0).Detail, "a template holds at most 2001 objects");
  EXPECT_EQ(objects.TakeFreeRow(), expected);
}

TEST_F(Guard, AGoodCommandStandsAndShowsNothing) {
  const auto designer = Start();
  EXPECT_TRUE(designer->Guarded([&] { designer->OpenDocument().Objects[1].Content = "changed"; }));
  EXPECT_EQ(designer->OpenDocument().Objects[1].Content, "changed");
  EXPECT_TRUE(host_.Messages.empty());
}

TEST_F(Guard, MemoryThatRunsOutIsToldInWords) {
  const auto designer = Start();
  EXPECT_FALSE(designer->Guarded([] { throw std::bad_alloc(); }));
  EXPECT_EQ(host_.Messages.at(0).Detail, "out of memory");
}

TEST_F(Guard, TheInnermostOneActs) {
  const auto designer = Start();
  ObjectTable& objects = designer->OpenDocument().Objects;
  EXPECT_TRUE(designer->Guarded([&] {
    objects[1].Content = "outer";
    designer->Guarded([&] {
      objects[1].Content = "inner";
      throw std::out_of_range("no more");
    });
  }));
  EXPECT_EQ(objects[1].Content, "outer");
  EXPECT_EQ(host_.Messages.size(), 1U);
}

TEST_F(Guard, PaintingThatFailsEndsInOneMessage) {
  const auto designer = Start();
  view_.OnRedraw = [] { throw std::out_of_range("no such row"); };
  EXPECT_FALSE(designer->Guarded([&] { designer->DeriveGeometryAndRedraw(); }));
  EXPECT_EQ(host_.Messages.size(), 1U);
}

TEST_F(Guard, WorkOnTheViewIsTakenBackByItsOwnStep) {
  const auto designer = Start();
  bool changed = false;
  const auto change = [&] {
    changed = true;
    designer->OpenDocument().Objects[1].Content = "painted";
    throw std::bad_alloc();
  };
  EXPECT_FALSE(designer->GuardedView(change, [&] { changed = false; }));
  EXPECT_FALSE(changed);
  // Nothing was copied, so nothing is put back.
  EXPECT_EQ(designer->OpenDocument().Objects[1].Content, "painted");
  EXPECT_EQ(host_.Messages.at(0).Detail, "out of memory");
  ExpectMessage(*designer, kTextOperationFailed);
}

TEST_F(Guard, AFilterThatCannotBePaintedIsTakenBack) {
  const auto designer = Start();
  view_.OnRedraw = [&] {
    if (designer->Filter() == DisplayFilter::Print) throw std::out_of_range("no such row");
  };
  EXPECT_FALSE(designer->SetFilter(DisplayFilter::Print));
  EXPECT_EQ(designer->Filter(), DisplayFilter::All);
  EXPECT_EQ(host_.Messages.size(), 1U);
  EXPECT_TRUE(designer->SetFilter(DisplayFilter::Ebeu));
  EXPECT_EQ(designer->Filter(), DisplayFilter::Ebeu);
}

class Zoom : public test::DesignerTest {};

TEST_F(Zoom, OneThatCannotBePaintedIsPutBack) {
  const auto designer = Start();
  view_.OnRedraw = [&] {
    if (designer->ZoomFactor() > 1) throw std::bad_alloc();
  };
  EXPECT_FALSE(designer->SetZoom("150"));
  EXPECT_EQ(designer->ZoomFactor(), 1.0);
  EXPECT_EQ(view_.Zoom, "100%");
  ExpectMessage(*designer, kTextOperationFailed);
}

TEST_F(Zoom, TheOneInForceIsShownAndNotPaintedAgain) {
  const auto designer = Start();
  ASSERT_TRUE(designer->SetZoom("133"));
  const int redrawn = view_.Redrawn;
  view_.Zoom.clear();
  EXPECT_TRUE(designer->SetZoom("133.0"));
  EXPECT_EQ(view_.Zoom, "133%");
  EXPECT_EQ(view_.Redrawn, redrawn);
}

TEST_F(Zoom, AnyNumberInTheBoundsWorks) {
  const auto designer = Start();
  for (const std::string_view text : kZoomList)
    EXPECT_TRUE(designer->SetZoom(text)) << text;
  EXPECT_EQ(designer->ZoomFactor(), 2.0);
  EXPECT_TRUE(designer->SetZoom("133"));
  EXPECT_EQ(designer->ZoomFactor(), 1.33);
  EXPECT_EQ(view_.Zoom, "133%");
  EXPECT_TRUE(designer->SetZoom(" 10 %"));
  EXPECT_TRUE(designer->SetZoom("800"));
  EXPECT_EQ(designer->ZoomFactor(), 8.0);
}

TEST_F(Zoom, OutsideTheOldOneIsPutBack) {
  const auto designer = Start();
  ASSERT_TRUE(designer->SetZoom("120%"));
  const int redrawn = view_.Redrawn;
  for (const char* text : {"9", "9.99%", "801", "", "abc", "-100", "1e400", "0"}) {
    view_.Zoom.clear();
    EXPECT_FALSE(designer->SetZoom(text)) << text;
    EXPECT_EQ(view_.Zoom, "120%");
    EXPECT_EQ(designer->ZoomFactor(), 1.2);
  }
  EXPECT_EQ(view_.Redrawn, redrawn);
}

TEST_F(Zoom, TheListHasNineEntriesInTheirOrder) {
  ASSERT_EQ(kZoomList.size(), 9U);
  EXPECT_EQ(kZoomList.front(), "25%");
  EXPECT_EQ(kZoomList[3], "80%");
  EXPECT_EQ(kZoomList.back(), "200%");
}

class Arrival : public test::DesignerTest {
 protected:
  std::string Remote(const std::string& size) {
    return Made("a.kev", test::TemplateWith("{Pic=http://example.org/logo.gif,100,," + size + "}\r\n"));
  }
  ObjectRecord& PictureOf(Designer& designer) {
    for (int row = 1;; ++row) {
      if (designer.OpenDocument().Objects[row].Kind == ObjectKind::Picture)
        return designer.OpenDocument().Objects[row];
    }
  }
  // 20 by 10 pixels.
  static std::string Gif() { return std::string("GIF89a\x14\0\x0A\0", 10); }
};

TEST_F(Arrival, AFetchedPictureGetsItsOwnSizeAndIsPainted) {
  const auto designer = Start({Remote("")});
  ASSERT_EQ(host_.Fetches.size(), 1U);
  EXPECT_EQ(host_.Fetches[0].Address, "http://example.org/logo.gif");
  EXPECT_EQ(host_.Fetches[0].File, Temp("Cache/logo.gif"));
  EXPECT_EQ(PictureOf(*designer).PictureFile, "\\Cache\\logo.gif");
  EXPECT_EQ(PictureOf(*designer).Width, 0);
  const int redrawn = view_.Redrawn;
  test::WriteBytes(host_.Fetches[0].File, Gif());
  host_.Fetches[0].Done(true);
  EXPECT_EQ(PictureOf(*designer).Width, 300);
  EXPECT_EQ(PictureOf(*designer).Height, 150);
  EXPECT_GT(view_.Redrawn, redrawn);
  EXPECT_FALSE(designer->Modified());
  EXPECT_EQ(designer->PictureFileOnDisk("\\Cache\\logo.gif"), Temp("Cache/logo.gif"));
}

TEST_F(Arrival, TheSelectedPictureGetsItsHandlesAndSheetAnew) {
  const auto designer = Start({Remote("")});
  for (int row = 1; row <= designer->OpenDocument().Objects.LastScanned(); ++row)
    if (designer->OpenDocument().Objects[row].Kind == ObjectKind::Picture)
      designer->Surface().GoToObject(row);
  test::WriteBytes(host_.Fetches.at(0).File, Gif());
  host_.Fetches[0].Done(true);
  EXPECT_EQ(designer->Surface().Pointer().Overlay[1].Width(), 300);
  const auto& rows = designer->Sheets().Shown().Rows;
  const auto width =
      std::find_if(rows.begin(), rows.end(), [](const auto& row) { return row.Caption == "Width"; });
  ASSERT_NE(width, rows.end());
  EXPECT_EQ(width->Value, "300");
}

TEST_F(Arrival, AGivenWidthKeepsTheProportion) {
  const auto designer = Start({Remote("600")});
  test::WriteBytes(host_.Fetches.at(0).File, Gif());
  host_.Fetches[0].Done(true);
  EXPECT_EQ(PictureOf(*designer).Width, 600);
  EXPECT_EQ(PictureOf(*designer).Height, 300);
}

TEST_F(Arrival, APictureThatArrivesDuringTheReadBelongsToTheNewDocument) {
  int arrived = 0;
  host_.OnStep = [&] {
    if (host_.Fetches.size() <= static_cast<std::size_t>(arrived)) return;
    test::WriteBytes(host_.Fetches[0].File, Gif());
    host_.Fetches[static_cast<std::size_t>(arrived++)].Done(true);
  };
  bool paintedBefore = false;
  view_.OnRedraw = [&] { paintedBefore = paintedBefore || view_.Replaced == 0; };
  // Long enough for steps behind the picture.
  std::string data = "{Pic=http://example.org/logo.gif,100,,}\r\n";
  for (int line = 0; line < 300; ++line)
    data += "{Spacing=10;\\n}\r\n";
  const auto designer = Start({Made("a.kev", test::TemplateWith(data))});
  ASSERT_EQ(arrived, 1);
  EXPECT_FALSE(paintedBefore) << "the view was shown rows that it was not told of";
  EXPECT_EQ(PictureOf(*designer).Width, 300);
  EXPECT_EQ(PictureOf(*designer).Height, 150);
}

TEST_F(Arrival, WhatPaintingMovesBehindAnArrivalIsPaintedAgain) {
  const auto designer = Start({Remote("")});
  ObjectRecord& picture = PictureOf(*designer);
  picture.OwnerName.clear();
  view_.Redrawn = 0;
  view_.OnRedraw = [&] {
    picture.AbsoluteY = view_.Redrawn == 1 ? picture.AbsoluteY + 5000 : picture.AbsoluteY;
  };
  test::WriteBytes(host_.Fetches.at(0).File, Gif());
  host_.Fetches[0].Done(true);
  EXPECT_FALSE(picture.OwnerName.empty()) << "the geometry was not derived";
  EXPECT_GE(view_.Redrawn, 1);
}

TEST_F(Arrival, APictureThatDoesNotComeIsMissing) {
  const auto designer = Start({Remote("")});
  host_.Fetches.at(0).Done(false);
  EXPECT_EQ(PictureOf(*designer).PictureFile, "\\dashes.bmp");
  EXPECT_EQ(PictureOf(*designer).Width, 0);
}

TEST_F(Arrival, ADesignerThatIsGoneIsNotCalled) {
  Start({Remote("")}).reset();
  host_.Fetches.at(0).Done(true);
}

}  // namespace
}  // namespace kev
