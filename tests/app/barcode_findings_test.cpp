// SPDX-License-Identifier: MIT
// Bar codes that reach farther than they can be painted are among the findings for as long as they do.
#include "app/designer_fixture.h"

namespace kev {
namespace {

using test::CountOf;
using test::TemplateWith;

class BarcodeFindingsTest : public test::DesignerTest {
 protected:
  static int FirstBarcode(const Designer& designer) {
    const ObjectTable& objects = designer.OpenDocument().Objects;
    for (int row = 1; row <= objects.LastScanned(); ++row)
      if (objects[row].Kind == ObjectKind::Barcode) return row;
    return 0;
  }
  // A page that is wide enough for all of them.
  static std::string Wide(const std::string& data) {
    return "PAGEWIDTH=40000\r\nPAGELENGHT=20000\r\nPAPERSIZE=(custom)\r\n" + TemplateWith(data);
  }
  std::string FarTemplate() const {
    return Made("far.kev", Wide("{32000;B128B;BarHeight=400}@code{NoBar}\r\n{Spacing=400;\\n}\r\n"));
  }
};

TEST_F(BarcodeFindingsTest, AreTheRowsThatStop) {
  const auto designer = Start({FarTemplate()});
  const int row = FirstBarcode(*designer);
  ASSERT_GT(row, 0);
  ASSERT_EQ(designer->Findings().size(), 1U);
  EXPECT_EQ(designer->Findings()[0].Kind, FindingKind::PaintingStops);
  EXPECT_EQ(designer->Findings()[0].Text, "@code");
  EXPECT_EQ(designer->Findings()[0].Row, row);
  EXPECT_TRUE(host_.Messages.empty());
}

TEST_F(BarcodeFindingsTest, StayBehindASaveAndGoWithTheirCause) {
  const auto designer = Start({FarTemplate()});
  const int row = FirstBarcode(*designer);
  ASSERT_TRUE(designer->Save());
  ASSERT_FALSE(designer->Findings().empty());
  EXPECT_EQ(designer->Findings().back().Kind, FindingKind::PaintingStops);
  const int lists = view_.FindingLists;
  designer->Surface().Redraw();
  EXPECT_EQ(view_.FindingLists, lists);
  designer->OpenDocument().Objects[row].XValue = "100";
  designer->Surface().Redraw();
  EXPECT_EQ(view_.FindingLists, lists + 1);
  for (const Finding& finding : designer->Findings())
    EXPECT_NE(finding.Kind, FindingKind::PaintingStops);
}

TEST_F(BarcodeFindingsTest, ComeAndGoWithTheZoom) {
  const auto designer =
      Start({Made("zoom.kev", Wide("{25000;B128B;BarHeight=400}@code{NoBar}\r\n{Spacing=400;\\n}\r\n"))});
  EXPECT_TRUE(designer->Findings().empty());
  ASSERT_TRUE(designer->SetZoom("800%"));
  EXPECT_EQ(designer->Findings().size(), 1U);
  ASSERT_TRUE(designer->SetZoom("100%"));
  EXPECT_TRUE(designer->Findings().empty());
}

TEST_F(BarcodeFindingsTest, AnotherDocumentHasItsOwn) {
  const auto designer = Start({FarTemplate()});
  designer->NewTemplate();
  EXPECT_TRUE(designer->Findings().empty());
}

TEST_F(BarcodeFindingsTest, TheFactorIsCarriedFromPageToPanelAndOn) {
  const auto designer =
      Start({Made("widths.kev",
                  TemplateWith("{100;Bar;BarHeight=400;BarWidth=3}@code{NoBar}\r\n{Spacing=400;\\n}\r\n"))});
  const int row = FirstBarcode(*designer);
  EXPECT_EQ(designer->OpenDocument().Objects[row].Width, 3 * 1688);
  designer->OpenDocument().Objects[row].BarWidth = 0;
  designer->Surface().Redraw();
  EXPECT_EQ(designer->OpenDocument().Objects[row].Width, 3 * 1688);
}

}  // namespace
}  // namespace kev
