// SPDX-License-Identifier: MIT
// A document, a designer's services that keep what they were asked, and the ways to open the dialog.
#pragma once

#include <gmock/gmock.h>

#include <map>
#include <string>
#include <vector>

#include "document/sections.h"
#include "support/recording_surface.h"
#include "support/templates.h"
#include "surface/subsection_dialog.h"

namespace kev::test {

// Keeps the document as it stood at each push, and lays the page out as the designer does.
class SubsectionServices final : public PageServices {
 public:
  explicit SubsectionServices(Document& document) : document_(document) {}
  std::vector<ObjectTable> Levels;
  std::vector<int> Boxes;
  int BandChanges = 0;

  void PushUndo() override { Levels.push_back(document_.Objects); }
  void MarkChanged() override {}
  void FullRepaint() override { DeriveGeometry(document_); }
  void BandsChanged() override {
    ++BandChanges;
    NormaliseSubsections(document_, SetSortKeys(document_));
    FullRepaint();
  }
  void BuildRulers() override {}
  void SelectionChanged() override {}
  void CommandsChanged() override {}
  const std::string& Text(int) const override { return text_; }
  BoxAnswer ShowBox(int textNumber, BoxIcon icon, BoxButtons) override {
    EXPECT_EQ(icon, BoxIcon::Critical);
    Boxes.push_back(textNumber);
    return BoxAnswer::Ok;
  }
  void OpenContextMenu(ContextMenu) override {}
  void OpenProperties(int) override {}
  void ShowFieldScreen(const FieldScreenLook&) override {}
  void HideFieldScreen() override {}
  void StartAllowTimer(int, std::function<void()>) override {}
  void RunPendingTool() override {}

 private:
  Document& document_;
  std::string text_;
};

inline const std::vector<RecordType> kTypes = {{"CUSTOMER", 1, 2}, {"Items", 4, 3}, {"END", 1, 0}};

class SubsectionDialogTest : public testing::Test {
 protected:
  void Read(std::initializer_list<std::string_view> lines) {
    document_ = ReadText(Lines(lines)).Read;
    DeriveGeometry(document_);
  }
  // Header, data with two subsections, footer, each with something in it.
  void ReadPage() {
    Read({"[CONFIGURATION]", "KEXVER=4", "[HEADER]", "{Spacing=400;\\n}", "[DATA]", "{Spacing=300;\\n}",
          "[ITEMS:@code,@text]", "{100;}First{}", "{Spacing=500;\\n}", "[TOTAL]", "{200;}Sum{}",
          "{Spacing=600;\\n}", "[FOOTER]", "{100;}Foot{}", "{Spacing=400;\\n}"});
  }
  SubsectionDialog New(BaseSection section = BaseSection::Data) {
    return OpenNewSubsection(document_, kTypes, "Field", section);
  }
  SubsectionDialog Open(int row) { return OpenSubsection(document_, row, kTypes, "Field"); }
  bool Accept(SubsectionDialog& dialog) {
    PageWork work{document_, pointer_, surface_, services_, measurer_, 1, DisplayFilter::All, {}, 0, 0};
    return AcceptSubsection(work, dialog);
  }
  int RowNamed(std::string_view name) const {
    for (int row = 1; row <= document_.Objects.LastScanned(); ++row) {
      const ObjectRecord& record = document_.Objects[row];
      if (record.Kind == ObjectKind::Subsection && record.SectionName == name) return row;
    }
    ADD_FAILURE() << "no subsection " << name;
    return 0;
  }
  const ObjectRecord& Label(std::string_view text) const {
    for (int row = 1; row <= document_.Objects.LastScanned(); ++row) {
      if (document_.Objects[row].Kind == ObjectKind::Label && document_.Objects[row].Content == text)
        return document_.Objects[row];
    }
    ADD_FAILURE() << "no label " << text;
    return document_.Objects[0];
  }
  // The titles of the bars from top to bottom.
  std::vector<std::string> Titles() const {
    std::map<std::int32_t, std::string> byPlace;
    for (const ObjectRecord* bar : RowsOfKind(document_, ObjectKind::Subsection))
      byPlace[bar->AbsoluteY] = bar->SectionTitle;
    std::vector<std::string> titles;
    for (const auto& [place, title] : byPlace)
      titles.push_back(title);
    return titles;
  }
  void ExpectRefused(SubsectionDialog& dialog, int textNumber) {
    const ObjectTable before = document_.Objects;
    services_.Boxes.clear();
    EXPECT_FALSE(Accept(dialog));
    EXPECT_THAT(services_.Boxes, testing::ElementsAre(textNumber));
    EXPECT_THAT(services_.Levels, testing::IsEmpty());
    EXPECT_EQ(services_.BandChanges, 0);
    for (int row = 1; row <= before.LastScanned(); ++row)
      ASSERT_EQ(document_.Objects[row], before[row]) << row;
  }

  Document document_;
  PointerState pointer_;
  RecordingSurface surface_;
  BuiltInMeasurer measurer_;
  SubsectionServices services_{document_};
};

}  // namespace kev::test
