// SPDX-License-Identifier: MIT
// Selecting and dragging groups through the designer, as the window's events drive it.
#include "app/designer_fixture.h"

namespace kev {
namespace {

class PageSelectionTest : public test::DesignerTest {
 protected:
  PageSelectionTest() : designer_(Start()) {
    EXPECT_TRUE(designer_->OpenFresh(test::TemplateWith("{500;}Alpha{3000;}Beta{\\n}\r\n")));
    const ObjectTable& objects = designer_->OpenDocument().Objects;
    for (int row = 1; row <= objects.LastScanned(); ++row) {
      if (objects[row].Content == "Alpha") alpha_ = row;
      if (objects[row].Content == "Beta") beta_ = row;
    }
    designer_->Surface().Pointer().BandAllowed = true;
  }

  const ObjectRecord& Record(int row) const { return std::as_const(designer_->OpenDocument()).Objects[row]; }
  DesignSurface& Surface() { return designer_->Surface(); }
  // Left of the row's top left corner and above it, by so many units.
  CanvasPoint Beside(int row, double by) {
    const CanvasArea area = AreaOf(Record(row), designer_->OpenDocument(), designer_->ZoomFactor());
    return {area.Left - by, area.Top - by};
  }
  static PointerInput Input(PointerButton button, CanvasPoint at, int shift = 0) {
    return {PointerSource::Page, 0, button, shift, at.X, at.Y};
  }
  void Click(CanvasPoint at, int shift = 0) {
    Surface().PointerPress(Input(PointerButton::Left, at, shift));
    Surface().PointerRelease(Input(PointerButton::Left, at, shift));
  }
  void Hold(CanvasPoint from, CanvasPoint to) {
    Surface().PointerPress(Input(PointerButton::Left, from));
    Surface().PointerMove(Input(PointerButton::Left, to));
  }

  std::unique_ptr<Designer> designer_;
  int alpha_ = 0, beta_ = 0;
};

TEST_F(PageSelectionTest, ClickSelectsAndTheStatusPanelSaysSo) {
  Click(Beside(alpha_, -20));
  EXPECT_EQ(designer_->OpenDocument().Objects.CurrentObject, alpha_);
  EXPECT_EQ(host_.Selection, "1 " + designer_->Text(kTextObjectsSelected));
  EXPECT_FALSE(designer_->Modified());
  Click({9000, Beside(alpha_, -20).Y});
  EXPECT_EQ(host_.Selection, "");
}

TEST_F(PageSelectionTest, GroupIsMadeWithShiftDraggedAndEndedByEscape) {
  Click(Beside(alpha_, -20), kShiftKey);
  Click(Beside(beta_, -20), kShiftKey);
  EXPECT_EQ(host_.Selection, "2 " + designer_->Text(kTextObjectsSelected));
  const CanvasPoint inside = Beside(alpha_, -20);
  const CanvasPoint beside{inside.X + 100, inside.Y};
  Hold(inside, beside);
  EXPECT_TRUE(Surface().Busy());
  Surface().PointerRelease(Input(PointerButton::Left, beside));
  EXPECT_EQ(Record(alpha_).XValue, "600");
  EXPECT_EQ(Record(beta_).XValue, "3100");
  EXPECT_TRUE(designer_->Modified());
  EXPECT_TRUE(Surface().KeyDown(kKeyEscape, 0, {}));
  EXPECT_FALSE(Surface().Pointer().MultiSelected);
  EXPECT_EQ(host_.Selection, "1 " + designer_->Text(kTextObjectsSelected)) << "the last one clicked stays";
}

TEST_F(PageSelectionTest, EscapeGivesUpADragWithoutAChange) {
  Click(Beside(alpha_, -20), kShiftKey);
  Hold(Beside(alpha_, -20), {2000, 2000});
  EXPECT_TRUE(Surface().KeyDown(kKeyEscape, 0, {}));
  EXPECT_EQ(Record(alpha_).XValue, "500");
  EXPECT_FALSE(designer_->Modified());
  EXPECT_TRUE(Surface().Pointer().MultiSelected) << "the next one ends the group";
  EXPECT_TRUE(Surface().KeyDown(kKeyEscape, 0, {}));
  EXPECT_FALSE(Surface().Pointer().MultiSelected);
}

TEST_F(PageSelectionTest, AnotherDocumentHasNoSelection) {
  Click(Beside(alpha_, -20), kShiftKey);
  EXPECT_TRUE(designer_->OpenFresh(test::TemplateWith("{500;}Gamma{\\n}\r\n")));
  EXPECT_FALSE(Surface().Pointer().MultiSelected);
  EXPECT_FALSE(Surface().Pointer().HasPosition());
  EXPECT_FALSE(Surface().Pointer().BandAllowed);
  EXPECT_TRUE(Surface().Pointer().FirstClick);
  EXPECT_EQ(host_.Selection, "");
}

TEST_F(PageSelectionTest, FilterDeselectsAlsoWhatIsStillShown) {
  Click(Beside(alpha_, -20));
  EXPECT_TRUE(designer_->SetFilter(DisplayFilter::Print));
  EXPECT_EQ(designer_->OpenDocument().Objects.CurrentObject, 0);
  EXPECT_EQ(host_.Selection, "");
}

TEST_F(PageSelectionTest, FilterEndsAGroup) {
  Click(Beside(alpha_, -20), kShiftKey);
  Click(Beside(beta_, -20), kShiftKey);
  designer_->OpenDocument().Objects[beta_].PrintFlag = kFalse;
  EXPECT_TRUE(designer_->SetFilter(DisplayFilter::Print));
  EXPECT_FALSE(Surface().Pointer().MultiSelected);
  EXPECT_EQ(Record(alpha_).Selected, kFalse);
  EXPECT_EQ(designer_->OpenDocument().Objects.CurrentObject, 0);
}

TEST_F(PageSelectionTest, EscapeGivesUpTheTypedTextAndKeepsTheSelection) {
  Click(Beside(alpha_, -20));
  EXPECT_TRUE(Surface().KeyDown('X', 0, "x"));
  EXPECT_EQ(Surface().Edit().Text, "Alphax");
  EXPECT_TRUE(Surface().KeyDown(kKeyEscape, 0, {}));
  EXPECT_FALSE(Surface().Edit().Active());
  EXPECT_EQ(Record(alpha_).Content, "Alpha");
  EXPECT_EQ(designer_->OpenDocument().Objects.CurrentObject, alpha_);
  EXPECT_EQ(Surface().Undo().UndoIndex(), 0);
}

TEST_F(PageSelectionTest, ZoomStoresTheTypedTextFirst) {
  Click(Beside(alpha_, -20));
  EXPECT_TRUE(Surface().KeyDown('X', 0, "x"));
  EXPECT_TRUE(designer_->SetZoom("200%"));
  EXPECT_FALSE(Surface().Edit().Active());
  EXPECT_EQ(Record(alpha_).Content, "Alphax");
}

TEST_F(PageSelectionTest, FilterThatHidesTheCurrentRowDeselectsIt) {
  Click(Beside(alpha_, -20));
  designer_->OpenDocument().Objects[alpha_].PrintFlag = kFalse;
  EXPECT_TRUE(designer_->SetFilter(DisplayFilter::Print));
  EXPECT_EQ(designer_->OpenDocument().Objects.CurrentObject, 0);
  EXPECT_EQ(host_.Selection, "");
}

}  // namespace
}  // namespace kev
