// SPDX-License-Identifier: MIT
// QR codes on the page of a designer: when their images are made, waited for, shown and deleted.
#include <gmock/gmock.h>

#include "app/designer_fixture.h"

namespace kev {
namespace {

using test::TemplateWith;
using testing::ElementsAre;
using testing::IsEmpty;

class QrOnPage : public test::DesignerTest {
 protected:
  QrOnPage() {
    host_.OnProgram = [this](const ProgramStart& start) {
      if (!works_) return;
      const bool first = FileNameOf(start.Program) == "qrcode";
      test::WriteBytes(first ? start.Arguments.at(0).substr(2) : start.Arguments.at(1), "made");
    };
    view_.Page.Lines.clear();
  }
  static std::string FileNameOf(const std::string& path) { return path.substr(path.rfind('/') + 1); }

  // One QR is on the page when the window is there.
  void Open(const std::string& text = "first") {
    designer_ =
        Start({Made("a.kev", TemplateWith("{QrCode=600,,900}" + text + "{nobar}{Spacing=4000;\\n}\r\n"))});
    for (int row = 1; row <= Objects().LastScanned(); ++row)
      if (std::as_const(Objects())[row].Kind == ObjectKind::Qr) row_ = row;
  }
  ObjectTable& Objects() { return designer_->OpenDocument().Objects; }
  ObjectRecord& Qr() { return Objects()[row_]; }
  DesignSurface& Surface() { return designer_->Surface(); }
  void EndTools() {
    for (std::size_t i = 0; i < host_.Programs.size(); ++i)
      if (host_.Programs[i].Ended) host_.EndProgram(host_.Programs[i].Id);
  }
  std::string LastText() const {
    for (auto at = host_.Programs.rbegin(); at != host_.Programs.rend(); ++at)
      if (FileNameOf(at->Start.Program) == "qrcode") return at->Start.Arguments.back();
    return {};
  }
  PointerInput At(double dx, double dy) {
    const CanvasArea area = AreaOf(Qr(), designer_->OpenDocument(), 1);
    return {PointerSource::Page, 0, PointerButton::Left, 0, area.Left + dx, area.Top + dy};
  }
  void Click() {
    Surface().PointerPress(At(300, 300));
    Surface().PointerRelease(At(300, 300));
  }
  void Type(const std::string& caption, const std::string& text) {
    const auto& rows = view_.Shown.Rows;
    for (std::size_t i = 0; i < rows.size(); ++i)
      if (rows[i].Caption == caption) return designer_->Sheets().Edited(static_cast<int>(i) + 1, text);
    FAIL() << caption;
  }
  // What the last repaint of the page shows of it.
  std::size_t Shown() const { return view_.Page.Only("sharp").size(); }

  bool works_ = true;
  std::unique_ptr<Designer> designer_;
  int row_ = 0;
};

TEST_F(QrOnPage, IsMadeBesideThePageAndShownOnceItIsThere) {
  Open();
  ASSERT_NE(row_, 0);
  EXPECT_THAT(host_.Waits, IsEmpty());
  ASSERT_EQ(host_.Programs.size(), 1U) << "whatever number of repaints";
  EXPECT_EQ(host_.Programs[0].Start.Program, root_ / "program/qrcode");
  EXPECT_EQ(Shown(), 0U);
  EXPECT_EQ(Qr().PictureFile,
            Temp("")
                .substr(0, Temp("").size() - 1)
                .append("\\" + std::to_string(row_) + "_" + std::to_string(Qr().Y) + ".bmp"));
  const int before = view_.Redrawn;
  EndTools();
  EXPECT_EQ(host_.Programs.size(), 2U);
  EXPECT_EQ(view_.Redrawn, before + 1);
  EXPECT_EQ(Shown(), 1U);
  EXPECT_FALSE(designer_->Modified());
}

TEST_F(QrOnPage, IsNotMadeAgainByRepaints) {
  Open();
  EndTools();
  for (int repaint = 0; repaint < 3; ++repaint)
    designer_->DeriveGeometryAndRedraw();
  EXPECT_EQ(host_.Programs.size(), 2U);
}

TEST_F(QrOnPage, WithAFailingToolRepaintsOnceAndIsLeftOut) {
  works_ = false;
  Open();
  const int before = view_.Redrawn;
  EndTools();
  EXPECT_EQ(view_.Redrawn, before + 1);
  EXPECT_EQ(host_.Programs.size(), 2U);
  EXPECT_EQ(Shown(), 0U);
  EXPECT_FALSE(std::filesystem::exists(Temp(FileNameOf(Qr().PictureFile))));
  EXPECT_THAT(host_.Messages, IsEmpty());
}

TEST_F(QrOnPage, WithoutToolsIsLeftOut) {
  host_.MissingPrograms = {root_ / "program/qrcode", root_ / "program/png2bmp"};
  Open();
  const int before = view_.Redrawn;
  EndTools();
  EXPECT_EQ(view_.Redrawn, before);
  EXPECT_EQ(Shown(), 0U);
  EXPECT_THAT(host_.Messages, IsEmpty());
}

TEST_F(QrOnPage, IsMadeBeforeAnInsertionShowsIt) {
  Open();
  EndTools();
  Surface().Pointer().LastX = At(2000, 1000).X;
  Surface().Pointer().LastY = At(2000, 1000).Y;
  EXPECT_TRUE(designer_->Run(Command::InsertQr));
  EXPECT_THAT(host_.Waits, ElementsAre(3, 4));
  EXPECT_EQ(LastText(), "QRCODE");
  EXPECT_EQ(host_.Programs.size(), 4U);
  EXPECT_TRUE(view_.Page.Has("sharp")) << "the page and the overlay";
  EXPECT_EQ(Objects()[Objects().CurrentObject].Content, "QRCODE");
}

TEST_F(QrOnPage, IsNotShownAsCurrentWhereAnotherTemplateWasOpenedMeanwhile) {
  Open();
  EndTools();
  const std::string other = Made("b.kev", TemplateWith("{500;}other{\\n}\r\n"));
  host_.OnWait = [&](ProcessId process) {
    if (process == 3) designer_->OpenTemplate(other);
  };
  Surface().Pointer().LastX = At(2000, 1000).X;
  Surface().Pointer().LastY = At(2000, 1000).Y;
  EXPECT_TRUE(designer_->Run(Command::InsertQr));
  EXPECT_EQ(designer_->DocumentPath(), other);
  EXPECT_EQ(test::CountOf(*designer_, ObjectKind::Qr), 0);
  EXPECT_EQ(test::CountOf(*designer_, ObjectKind::Label), 1);
  EXPECT_EQ(Objects().CurrentObject, 0);
}

TEST_F(QrOnPage, FollowsAZoomDuringTheWait) {
  Open();
  EndTools();
  host_.OnWait = [this](ProcessId process) {
    if (process == 3) designer_->SetZoom("200%");
  };
  Surface().Pointer().LastX = At(2000, 1000).X;
  Surface().Pointer().LastY = At(2000, 1000).Y;
  EXPECT_TRUE(designer_->Run(Command::InsertQr));
  const ObjectRecord& inserted = Objects()[Objects().CurrentObject];
  EXPECT_EQ(Surface().Pointer().Overlay[1], AreaOf(inserted, designer_->OpenDocument(), 2));
}

TEST_F(QrOnPage, IsMadeAndWaitedForBehindAnEditBesideThePage) {
  Open();
  EndTools();
  Click();
  Type("Text", "new \xE9");
  EXPECT_EQ(LastText(), "new é");
  EXPECT_EQ(host_.Waits.size(), 2U);
  EXPECT_EQ(Shown(), view_.Page.Only("sharp").size());
  EXPECT_GE(Shown(), 1U);
  EXPECT_EQ(host_.Programs.size(), 4U) << "one of each";
}

TEST_F(QrOnPage, HoldsAnEditBackWhileItsToolsRun) {
  Open();
  Click();
  Type("Text", "new");
  EXPECT_EQ(host_.Programs.size(), 4U);
  EXPECT_EQ(LastText(), "new");
}

TEST_F(QrOnPage, OnTheFloatingFormIsMadeByTheRepaintAlone) {
  Open();
  EndTools();
  designer_->Sheets().SwitchPlace();
  Click();
  Type("Text", "new");
  EXPECT_THAT(host_.Waits, IsEmpty());
  EndTools();
  EXPECT_EQ(LastText(), "new");
}

TEST_F(QrOnPage, IsNotWaitedForBehindAnEditOfAnythingElse) {
  Open();
  EndTools();
  Click();
  Type("Print at runtime", "No");
  EXPECT_THAT(host_.Waits, IsEmpty());
  EXPECT_EQ(host_.Programs.size(), 2U);
}

TEST_F(QrOnPage, ThatComesDuringAGestureWaitsForItsEnd) {
  Open();
  Surface().PointerPress(At(300, 300));
  Surface().PointerMove(At(500, 300));
  Surface().PointerMove(At(700, 300));
  ASSERT_TRUE(Surface().Busy());
  const int before = view_.Redrawn;
  EndTools();
  EXPECT_EQ(view_.Redrawn, before);
  Surface().CancelGesture();
  EXPECT_EQ(view_.Redrawn, before + 1);
  EXPECT_GE(Shown(), 1U);
}

TEST_F(QrOnPage, ThatComesDuringAnotherCommandWaitsForItsEnd) {
  Open();
  int during = 0;
  designer_->Guarded([&] {
    const int before = view_.Redrawn;
    EndTools();
    during = view_.Redrawn - before;
  });
  EXPECT_EQ(during, 0);
  EXPECT_GE(Shown(), 1U);
}

TEST_F(QrOnPage, ThatComesWhileItIsCurrentIsShownAboveThePageToo) {
  Open();
  Click();
  EXPECT_EQ(Objects().CurrentObject, row_);
  view_.Page.Lines.clear();
  EndTools();
  EXPECT_EQ(Shown(), 2U);
  EXPECT_EQ(Objects().CurrentObject, row_);
}

TEST_F(QrOnPage, MovedGetsAnotherImage) {
  Open();
  EndTools();
  const std::string first = Qr().PictureFile;
  Click();
  Type("Y position", "900");
  EXPECT_NE(Qr().PictureFile, first);
  EXPECT_FALSE(std::filesystem::exists(Temp(FileNameOf(first.substr(first.rfind('\\') + 1)))));
}

TEST_F(QrOnPage, ThatFailsKeepsTheDocumentWhole) {
  Open();
  works_ = false;
  Click();
  Type("Text", "new");
  EXPECT_EQ(Qr().Content, "new");
  EXPECT_THAT(host_.Messages, IsEmpty());
  EXPECT_TRUE(designer_->Save());
  EXPECT_NE(test::ReadBytes(Work("a.kev")).find("}new{"), std::string::npos);
}

TEST_F(QrOnPage, LeavesNoImageBehindTheRun) {
  Open();
  EndTools();
  const std::string name = std::to_string(row_) + "_" + std::to_string(Qr().Y);
  ASSERT_TRUE(std::filesystem::exists(Temp(name + ".bmp")));
  designer_->ShutDown();
  EXPECT_FALSE(std::filesystem::exists(Temp(name + ".bmp")));
  EXPECT_FALSE(std::filesystem::exists(Temp(name + ".png")));
}

TEST_F(QrOnPage, StopsItsToolsWhereTheRunEndsSilently) {
  Open();
  designer_->ShutDownSilently();
  EXPECT_THAT(host_.StoppedPrograms, ElementsAre(1));
  designer_->DeriveGeometryAndRedraw();
  EXPECT_EQ(host_.Programs.size(), 1U);
}

// A failure behind the wait must not put rows of the one document into the other.
TEST_F(QrOnPage, IsNotPutBackIntoAnotherTemplate) {
  Open();
  const std::string other = Made("b.kev", TemplateWith("{500;}other{\\n}\r\n"));
  EXPECT_FALSE(designer_->Guarded([&] {
    designer_->OpenTemplate(other);
    throw std::out_of_range("late");
  }));
  EXPECT_EQ(designer_->DocumentPath(), other);
  EXPECT_EQ(test::CountOf(*designer_, ObjectKind::Qr), 0);
  EXPECT_EQ(test::CountOf(*designer_, ObjectKind::Label), 1);
}

}  // namespace
}  // namespace kev
