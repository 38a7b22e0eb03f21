// SPDX-License-Identifier: MIT
// The way of a subsection's dialog from the command to the rows.
#include <gmock/gmock.h>

#include "app/designer_fixture.h"
#include "surface/subsection_dialog.h"

namespace kev {
namespace {

using testing::ElementsAre;

// Acts as the user in the dialog.
class DialogView final : public DesignerView {
 public:
  std::function<void(SubsectionDialog&, const std::function<bool()>&)> User;
  int Opened = 0;
  test::RecordingSurface Page;

  void DocumentReplaced() override {}
  SurfaceOps& Canvas() override { return Page; }
  void PageShown() override {}
  void ShowZoom(std::string_view) override {}
  void FindingsChanged() override {}
  void OpenSubsectionDialog(SubsectionDialog& dialog, const std::function<bool()>& accept) override {
    ++Opened;
    if (User) User(dialog, accept);
  }
};

class SubsectionCommand : public test::DesignerTest {
 protected:
  std::unique_ptr<Designer> Open(const std::string& head = "") {
    std::unique_ptr<Designer> designer =
        Start({Made("a.kev", head + test::TemplateWith("[ITEMS:@code]\r\n{100;}First{}\r\n"))});
    designer->AttachView(&user_);
    return designer;
  }
  static int RowNamed(const Designer& designer, std::string_view name) {
    const ObjectTable& objects = designer.OpenDocument().Objects;
    for (int row = 1; row <= objects.LastScanned(); ++row) {
      if (objects[row].Kind == ObjectKind::Subsection && objects[row].SectionName == name) return row;
    }
    return 0;
  }

  DialogView user_;
};

TEST_F(SubsectionCommand, MakesASubsectionThatIsSavedAndReadAgain) {
  const auto designer = Open();
  user_.User = [](SubsectionDialog& dialog, const std::function<bool()>& accept) {
    dialog.Name = "EXTRA";
    EXPECT_TRUE(accept());
  };
  EXPECT_TRUE(designer->Run(Command::NewSubsection));
  EXPECT_EQ(user_.Opened, 1);
  EXPECT_NE(RowNamed(*designer, "EXTRA"), 0);
  EXPECT_TRUE(designer->Modified());
  EXPECT_TRUE(designer->Save());
  EXPECT_THAT(host_.Messages, testing::IsEmpty());
  EXPECT_THAT(designer->Findings(), testing::IsEmpty()) << "what was saved comes back";
  EXPECT_TRUE(designer->OpenTemplate(Work("a.kev")));
  EXPECT_NE(RowNamed(*designer, "EXTRA"), 0);
}

TEST_F(SubsectionCommand, GivingUpChangesNothing) {
  const auto designer = Open();
  const int before = test::CountOf(*designer, ObjectKind::Subsection);
  user_.User = [](SubsectionDialog& dialog, const std::function<bool()>&) { dialog.Name = "EXTRA"; };
  EXPECT_TRUE(designer->Run(Command::NewSubsection));
  EXPECT_EQ(test::CountOf(*designer, ObjectKind::Subsection), before);
  EXPECT_FALSE(designer->Modified());
}

TEST_F(SubsectionCommand, ARefusalIsToldAndKeepsTheDialog) {
  const auto designer = Open();
  user_.User = [](SubsectionDialog& dialog, const std::function<bool()>& accept) {
    dialog.Name = "A:B";
    EXPECT_FALSE(accept());
  };
  designer->Run(Command::NewSubsection);
  ExpectMessage(*designer, kTextSubsectionNameRefused);
  EXPECT_FALSE(designer->Modified());
}

TEST_F(SubsectionCommand, AFullTableIsToldAndTakenBack) {
  const auto designer = Open();
  ObjectTable& objects = designer->OpenDocument().Objects;
  while (objects[ObjectTable::kLastRow - 1].Kind == ObjectKind::None)
    objects[objects.TakeFreeRow()].Kind = ObjectKind::Box;
  user_.User = [](SubsectionDialog& dialog, const std::function<bool()>& accept) {
    dialog.Name = "EXTRA";
    EXPECT_FALSE(accept());
  };
  designer->Run(Command::NewSubsection);
  ExpectMessage(*designer, kTextOperationFailed);
  EXPECT_EQ(RowNamed(*designer, "EXTRA"), 0);
  EXPECT_EQ(objects[ObjectTable::kLastRow].Kind, ObjectKind::None);
}

TEST_F(SubsectionCommand, OffersTheTypesOfTheSampleFileBesideTheTemplate) {
  Made("data.kex", "TEMPLATE=a.kev\r\n|ITEMS|1|2|\r\n|SUM|1|\r\n");
  const auto designer = Open("SAMPLE_KEX_FILE=Data.kex\r\n");
  std::vector<std::string> fields;
  user_.User = [&](SubsectionDialog& dialog, const std::function<bool()>&) {
    ASSERT_EQ(dialog.RecordTypes.size(), 2U);
    fields = dialog.RecordTypes[0].Fields;
  };
  designer->Run(Command::NewSubsection);
  EXPECT_THAT(fields, ElementsAre("@Field01", "@Field02"));
}

TEST_F(SubsectionCommand, BeginsInTheSectionOfTheCurrentObject) {
  const auto designer = Open();
  designer->OpenDocument().Objects.CurrentObject = RowNamed(*designer, "FOOTER]");
  BaseSection section = BaseSection::Configuration;
  user_.User = [&](SubsectionDialog& dialog, const std::function<bool()>&) { section = dialog.Section; };
  designer->Run(Command::NewSubsection);
  EXPECT_EQ(section, BaseSection::Footer);
}

TEST_F(SubsectionCommand, ItsPropertiesAreTheDialogOfTheRow) {
  const auto designer = Open();
  const int bar = RowNamed(*designer, "ITEMS");
  user_.User = [&](SubsectionDialog& dialog, const std::function<bool()>& accept) {
    EXPECT_EQ(dialog.Row, bar);
    dialog.Name = "LINES";
    EXPECT_TRUE(accept());
  };
  designer->Surface().OpenProperties(bar);
  EXPECT_EQ(user_.Opened, 1);
  EXPECT_EQ(RowNamed(*designer, "LINES"), bar);
}

TEST_F(SubsectionCommand, OtherRowsHaveNoSuchDialog) {
  const auto designer = Open("[CONFIGURATION]\r\n");
  designer->Surface().OpenProperties(designer->OpenDocument().Objects[RowNamed(*designer, "ITEMS")].EndRow);
  designer->Surface().OpenProperties(RowNamed(*designer, "CONFIGURATION]"));
  EXPECT_NE(RowNamed(*designer, "CONFIGURATION]"), 0);
  EXPECT_EQ(user_.Opened, 0);
}

}  // namespace
}  // namespace kev
