// SPDX-License-Identifier: MIT
// What an edit does by the kind of the object: codes, pictures, commands, sections.
#include "properties/sheet_fixture.h"

namespace kev {
namespace {

using test::SheetTest;
using ApplyKindsEdit = SheetTest;

TEST_F(ApplyKindsEdit, PasswordIsStoredAsOneOrZero) {
  Make(ObjectKind::TextBox);
  Type("Password field", "Yes");
  EXPECT_EQ(Record().TextBoxExtraValue, 1);
  Type("Password field", "No");
  EXPECT_EQ(Record().TextBoxExtraValue, 0);
}

TEST_F(ApplyKindsEdit, SampleAlwaysFollowsTheSymbology) {
  Make(ObjectKind::Barcode);
  const std::vector<std::pair<std::string, std::string>> samples = {{"STANDARD 3-9", "ABCDEF"},
                                                                    {"EAN-8", "12345678"},
                                                                    {"128 B", "123456"},
                                                                    {"EAN-13", "1234567890123"},
                                                                    {"128 C", "123456"},
                                                                    {"UCC EAN 128", "(01)12345678"},
                                                                    {"2 OF 5 STANDARD", "1234567890"},
                                                                    {"2 OF 5 INTERLEAVE", "1234567890"},
                                                                    {"2 OF 5 INDUSTRIAL", "1234567890"}};
  for (const auto& [name, sample] : samples) {
    Type({{"Barcode type", name}, {"Sample value", "typed"}});
    EXPECT_EQ(ValueOf("Barcode type"), name);
    EXPECT_EQ(Record().BarcodeSample, sample);
  }
  Record().BarcodeSample = "old";
  Type("Height", "700");
  EXPECT_EQ(Record().BarcodeSample, "1234567890");
  EXPECT_EQ(Record().Width, 2400);
}

TEST_F(ApplyKindsEdit, SymbologyWithoutASpecimenKeepsTheTypedSample) {
  Make(ObjectKind::Barcode).BarcodeKind = "32";
  EXPECT_EQ(Type("Sample value", " 123456789 "), "push, repaint");
  EXPECT_EQ(Record().BarcodeSample, "123456789");
  EXPECT_TRUE(host_.Messages.empty());
}

TEST_F(ApplyKindsEdit, UnknownSymbologyShowsItsWordsAndKeepsTheCode) {
  Make(ObjectKind::Barcode);
  EXPECT_EQ(Type("Barcode type", "CODABAR"), "push, repaint");
  ASSERT_EQ(host_.Messages.size(), 1U);
  EXPECT_EQ(host_.Messages[0].Text, "Barcode not found. ADD IT!");
  EXPECT_EQ(host_.Messages[0].Title, services_.Text(760));
  EXPECT_EQ(host_.Messages[0].Icon, BoxIcon::Critical);
  EXPECT_EQ(Record().BarcodeKind, "13");
}

TEST_F(ApplyKindsEdit, DiameterIsWidthAndHeight) {
  Make(ObjectKind::Circle);
  Type("Diameter", "500");
  EXPECT_EQ(Record().Width, 500);
  EXPECT_EQ(Record().Height, 500);
}

TEST_F(ApplyKindsEdit, LineIsAsWideAsItsEndsAreApart) {
  Make(ObjectKind::Line);
  Type("X2 /Column", "$Col_01 + 500");
  EXPECT_EQ(Record().Width, 1500 - 5000);
  Type("X/Column", "100");
  EXPECT_EQ(Record().Width, 1400);
}

TEST_F(ApplyKindsEdit, QrSizeIsBothAndMustBeAboveZero) {
  Make(ObjectKind::Qr);
  Type("Height/width", "900");
  EXPECT_EQ(Record().Width, 900);
  EXPECT_EQ(Record().Height, 900);
  for (const std::string text : {"0", "-5", ""}) {
    EXPECT_EQ(Type("Height/width", text), "push, repaint");
    EXPECT_EQ(Record().Height, 900);
  }
}

TEST_F(ApplyKindsEdit, QrImageIsOldOnlyBesideThePageAndOnlyForTextSizeAndPlace) {
  Make(ObjectKind::Qr);
  const test::SheetTest::Typed edits = {
      {"Text", "new"}, {"X/Column", "17"}, {"Y position", "18"}, {"Height/width", "800"}};
  for (const auto& edit : edits) {
    Type({edit});
    EXPECT_TRUE(outcome_.QrImageIsOld) << edit.first;
  }
  Type({{"Color", "1,1,1"}, {"Print at runtime", "Yes"}});
  EXPECT_FALSE(outcome_.QrImageIsOld);
  place_ = SheetPlace::Floating;
  Type("Text", "newer");
  EXPECT_FALSE(outcome_.QrImageIsOld);
  place_ = SheetPlace::Docked;
  Make(ObjectKind::Box);
  Type("Y position", "1");
  EXPECT_FALSE(outcome_.QrImageIsOld);
}

TEST_F(ApplyKindsEdit, PictureFileIsTakenWithItsSize) {
  pictures_.Pictures = {{"logo.png", {1000, 500}}, {"wide.png", {4000, 500}}};
  Make(ObjectKind::Picture);  // width fixed at 2400
  Type("File", "wide.png");
  EXPECT_EQ(Record().PicturePath, "wide.png");
  EXPECT_EQ(Record().Content, "wide.png");
  EXPECT_EQ(Record().PictureFile, "wide.png");
  EXPECT_EQ(Record().Width, 2400);
  EXPECT_EQ(Record().Height, 300);
}

TEST_F(ApplyKindsEdit, TypedPictureSizeIsFixed) {
  pictures_.Pictures = {{"logo.png", {1000, 500}}};
  Make(ObjectKind::Picture);
  Type("Height", "77");
  EXPECT_EQ(Record().PictureFixedHeight, kTrue);
  EXPECT_EQ(Record().Height, 77);
  EXPECT_EQ(ValueOf("Calculate height at runtime"), "No");
  Type({{"Calculate width at runtime", "Yes"}, {"Calculate height at runtime", "Yes"}});
  EXPECT_EQ(Record().PictureFixedWidth, kFalse);
  EXPECT_EQ(Record().Width, 1000);
  EXPECT_EQ(Record().Height, 500);
}

TEST_F(ApplyKindsEdit, PicturePathsOfDataAndAddressesAreAccepted) {
  for (const std::string path : {"@Logo", "$Logo", "https://shop.example/a.png", ""}) {
    Make(ObjectKind::Picture);
    EXPECT_EQ(Type("File", path), "push, repaint") << path;
    EXPECT_EQ(Record().PicturePath, path);
    EXPECT_EQ(Record().Width, 2400);
    EXPECT_EQ(Record().Height, 600);
  }
}

TEST_F(ApplyKindsEdit, CommandStoresTheRowsThatCarryItsArgument) {
  Make(ObjectKind::Command).Content = "@@page";
  Type({{"Execute", "other"}, {"Mode", "Always"}, {"Context", "Viewer"}, {"Value", " 7 "}});
  EXPECT_EQ(Record().ExecuteCommand, "KEVCMDZOOM");
  EXPECT_EQ(Record().ExecuteArg2, "Once");
  EXPECT_EQ(Record().CommandPayload, "7");
  Make(ObjectKind::Command).Content = "@@pagebreak";
  Type({{"Execute", "other"}, {"Value", "7"}});
  EXPECT_EQ(Record().ExecuteCommand, "KEVCMDZOOM");
  EXPECT_EQ(Record().CommandPayload, "12");
}

TEST_F(ApplyKindsEdit, CommandStoresArgumentsForTheContentThatIsTypedWithThem) {
  Make(ObjectKind::Command);
  Type({{"Command", "@@page"}, {"Execute", "other"}, {"Value", "7"}});
  EXPECT_EQ(Record().ExecuteCommand, "KEVCMDZOOM");
  EXPECT_EQ(Record().CommandPayload, "7");
}

TEST_F(ApplyKindsEdit, OnlyTheDockedPanelKnowsBase64) {
  Make(ObjectKind::Command).Content = "@@base64";
  Type({{"Execute", "other"}, {"Value", "7"}});
  EXPECT_EQ(Record().ExecuteCommand, "KEVCMDZOOM");
  EXPECT_EQ(Record().CommandPayload, "7");
  place_ = SheetPlace::Floating;
  Type({{"Execute", "other"}, {"Value", "8"}});
  EXPECT_EQ(Record().ExecuteCommand, "other");
  EXPECT_EQ(Record().CommandPayload, "7");
}

TEST_F(ApplyKindsEdit, ChoosingPageBreakDisablesTheArgumentsAtOnce) {
  Make(ObjectKind::Command);
  Type("Command", "@@pagebreak");
  EXPECT_FALSE(outcome_.Shown.Rows[1].Enabled);
  EXPECT_FALSE(outcome_.Shown.Rows[3].Enabled);
  EXPECT_TRUE(outcome_.Shown.Rows[4].Enabled);
  Type("Command", "@@page");
  EXPECT_TRUE(outcome_.Shown.Rows[1].Enabled);
}

TEST_F(ApplyKindsEdit, SectionHeightFollowsTheEndThatItEqualled) {
  document_.Objects.CurrentObject = bar_;
  Bar().SectionCursorY = 1000;
  Type("Section ends at", "1500");
  EXPECT_EQ(Bar().SectionCursorY, 1500);
  Type("Section ends at", "600");
  EXPECT_EQ(Bar().SectionCursorY, 600);
  Type("Height", "400");
  Type("Section ends at", "300");
  EXPECT_EQ(Bar().SectionCursorY, 300);
}

TEST_F(ApplyKindsEdit, BodiesBelowMoveWithTheEndOfASection) {
  Make(ObjectKind::Box);
  const int box = object_;
  ObjectRecord& below = Make(ObjectKind::Box);
  below.OwnerName = "FOOTER]";
  below.AbsoluteY = 2300;
  document_.Objects.CurrentObject = bar_;
  EXPECT_EQ(Type("Section ends at", "3000"), "push, bands");
  EXPECT_EQ(document_.Objects[footer_].AbsoluteY, 3600);
  EXPECT_EQ(document_.Objects[object_].AbsoluteY, 4300);
  EXPECT_EQ(document_.Objects[object_].OwnerName, "FOOTER]");
  EXPECT_EQ(document_.Objects[box].AbsoluteY, 700);
  EXPECT_EQ(document_.Objects[Bar().EndRow].Y, 3000);
}

TEST_F(ApplyKindsEdit, ButtonStoresNothing) {
  Make(ObjectKind::Chart);
  const ObjectRecord before = Record();
  EXPECT_EQ(Type("Custom", ""), "");
  EXPECT_EQ(Record(), before);
}

}  // namespace
}  // namespace kev
