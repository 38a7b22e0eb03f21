// SPDX-License-Identifier: MIT
// A designer in folders of its own, with a scripted host and a view that counts.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "app/chart_runs.h"
#include "app/column_runs.h"
#include "app/designer.h"
#include "app/document_properties.h"
#include "app/group_runs.h"
#include "app/recent_files.h"
#include "app/recover.h"
#include "app/welcome_run.h"
#include "base/text_numbers.h"
#include "document/text_measurer.h"
#include "support/recording_surface.h"
#include "support/run_tool.h"
#include "support/scripted_host.h"
#include "surface/column_lines.h"

namespace kev::test {

class CountingView final : public DesignerView {
 public:
  int Replaced = 0, Redrawn = 0, FindingLists = 0;
  std::string Zoom;
  RecordingSurface Page;
  std::function<void()> OnRedraw;
  int RecoverDialogs = 0;
  std::function<void(RecoverDialog&)> OnRecover;  // what the user does in the form
  ColumnList Columns;
  // The property panel.
  Sheet Shown;
  std::string ShownTitle;
  int SelectedRow = 0, PanelFocused = 0;
  std::vector<std::int32_t> PanelStates;
  std::function<void()> OnCommitCell;  // a cell that is open and has been typed in
  QuickPanel Quick;
  std::string QuickTitle;
  // What the user does in the dialogs of the columns.
  std::function<void(ColumnsDialogRun&)> OnColumnsDialog;
  std::function<void(SetColumnRun&)> OnSetThisColumn;
  // What the user does in the dialogs of a group, and the colour that is chosen.
  std::function<void(PlaceSelectionRun&)> OnPlaceSelection;
  std::function<void(AlignToGridRun&)> OnAlignToGrid;
  std::function<void(GroupFlagRun&)> OnModifyEndUser, OnPrintNoPrint;
  std::optional<Colour> ChosenColour;
  Colour OfferedColour;
  FontTools Fonts;
  std::function<void()> OnFontTools;  // while the tools are being filled
  // What the user does in the dialog of a chart.
  std::function<void(ChartWizardRun&)> OnChartWizard;
  // What the user does in the dialog of a subsection; the second is its OK.
  std::function<void(SubsectionDialog&, const std::function<bool()>&)> OnSubsection;

  // The recent files.
  std::vector<std::string> RecentCaptions;
  std::vector<ThumbnailLook> Thumbnails;
  std::string Bitmap = "a bitmap";
  // What the user does on the welcome screen and in the facts about the document.
  int Welcomes = 0;
  std::function<void(WelcomeRun&)> OnWelcome;
  std::function<void(DocumentPropertiesRun&)> OnDocumentProperties;
  int Assistants = 0;

  void ShowRecentFiles(const std::vector<std::string>& captions) override { RecentCaptions = captions; }
  std::string PaintThumbnail(const ThumbnailLook& look) override {
    Thumbnails.push_back(look);
    return Bitmap;
  }
  void OpenWelcome(WelcomeRun& run) override {
    ++Welcomes;
    if (OnWelcome) OnWelcome(run);
  }
  void OpenNewTemplate(NewTemplateRun&) override { ++Assistants; }
  void OpenDocumentProperties(DocumentPropertiesRun& run) override {
    if (OnDocumentProperties) OnDocumentProperties(run);
  }

  void DocumentReplaced() override { ++Replaced; }
  SurfaceOps& Canvas() override { return Page; }
  void PageShown() override {
    ++Redrawn;
    if (OnRedraw) OnRedraw();
  }
  void ShowZoom(std::string_view text) override { Zoom = text; }
  void FindingsChanged() override { ++FindingLists; }
  void ShowSheet(const Sheet& sheet, const std::string& title, int selectRow) override {
    Shown = sheet;
    ShownTitle = title;
    SelectedRow = selectRow;
  }
  void ShowPanel(std::int32_t state) override { PanelStates.push_back(state); }
  void FocusPanel() override { ++PanelFocused; }
  void CommitOpenCell() override {
    if (const std::function<void()> typed = std::exchange(OnCommitCell, nullptr)) typed();
  }
  void ShowRecoverDialog(RecoverDialog& dialog) override {
    ++RecoverDialogs;
    if (OnRecover) OnRecover(dialog);
  }
  void ShowColumnList(const ColumnList& list) override { Columns = list; }
  void OpenColumnsDialog(ColumnsDialogRun& run) override {
    if (OnColumnsDialog) OnColumnsDialog(run);
  }
  void OpenSetThisColumn(SetColumnRun& run) override {
    if (OnSetThisColumn) OnSetThisColumn(run);
  }
  void OpenPlaceSelection(PlaceSelectionRun& run) override {
    if (OnPlaceSelection) OnPlaceSelection(run);
  }
  void OpenAlignToGrid(AlignToGridRun& run) override {
    if (OnAlignToGrid) OnAlignToGrid(run);
  }
  void OpenModifyEndUser(GroupFlagRun& run) override {
    if (OnModifyEndUser) OnModifyEndUser(run);
  }
  void OpenPrintNoPrint(GroupFlagRun& run) override {
    if (OnPrintNoPrint) OnPrintNoPrint(run);
  }
  void ShowFontTools(const FontTools& tools) override {
    Fonts = tools;
    if (OnFontTools) OnFontTools();
  }
  std::optional<Colour> ChooseColour(const Colour& first) override {
    OfferedColour = first;
    return ChosenColour;
  }
  void ShowQuickPanel(const QuickPanel& panel, const std::string& title) override {
    Quick = panel;
    QuickTitle = title;
  }
  void OpenChartWizard(ChartWizardRun& run) override {
    if (OnChartWizard) OnChartWizard(run);
  }
  void OpenSubsectionDialog(SubsectionDialog& dialog, const std::function<bool()>& accept) override {
    if (OnSubsection) OnSubsection(dialog, accept);
  }
};

class DesignerTest : public testing::Test {
 protected:
  DesignerTest() {
    for (const char* folder : {"temp/Kev/Cache", "temp/Kev/Temp", "data/Kev/temp", "program", "work"})
      std::filesystem::create_directories(root_ / folder);
    std::filesystem::create_symlink(KEV_PROGRAM_DIR "/Kev.lng", root_ / "program/Kev.lng");
  }

  std::string Temp(const std::string& name) const { return root_ / ("temp/Kev/" + name); }
  // Everything in the folder of the recovery files, sorted.
  std::vector<std::string> CacheNames() const {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(Temp("Cache")))
      names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
  }
  std::string Data(const std::string& name) const { return root_ / ("data/Kev/" + name); }
  std::string Work(const std::string& name) const { return root_ / ("work/" + name); }

  std::string Made(const std::string& name, const std::string& bytes) const {
    WriteBytes(Work(name), bytes);
    return Work(name);
  }

  std::unique_ptr<Designer> Make(std::vector<std::string> arguments = {}) {
    const std::map<std::string, std::string> variables = variables_;
    StartInput input{[variables](std::string_view name) -> std::optional<std::string> {
                       const auto found = variables.find(std::string(name));
                       return found == variables.end() ? std::nullopt : std::optional(found->second);
                     },
                     root_ / "program", std::move(arguments), clock_};
    auto designer = std::make_unique<Designer>(host_, measurer_, std::move(input));
    designer->AttachView(&view_);
    return designer;
  }

  // The whole start, as the window runs it.
  std::unique_ptr<Designer> Start(std::vector<std::string> arguments = {}) {
    std::unique_ptr<Designer> designer = Make(std::move(arguments));
    EXPECT_TRUE(designer->Load());
    EXPECT_TRUE(designer->BeginActivation());
    designer->SplashLoad();
    designer->AfterSplash();
    return designer;
  }

  // One message with this text was shown since the last look, under this icon where one is given.
  void ExpectMessage(const Designer& designer, int number, std::optional<BoxIcon> icon = std::nullopt) {
    ASSERT_EQ(host_.Messages.size(), 1U) << "for text " << number;
    EXPECT_TRUE(host_.Messages[0].Text.starts_with(designer.Text(number))) << host_.Messages[0].Text;
    EXPECT_EQ(host_.Messages[0].Title, designer.Text(kTextProgramTitle));
    if (icon) {
      EXPECT_EQ(host_.Messages[0].Icon, *icon) << "for text " << number;
    }
    host_.Messages.clear();
  }

  TemporaryFolder root_;
  std::map<std::string, std::string> variables_ = {{"TEMP", root_ / "temp"}, {"appdata", root_ / "data"}};
  std::function<ClockTime()> clock_ = [] { return ClockTime{9, 5, 30}; };
  ScriptedHost host_;
  BuiltInMeasurer measurer_;
  CountingView view_;
};

inline int CountOf(const Designer& designer, ObjectKind kind) {
  int count = 0;
  const ObjectTable& objects = designer.OpenDocument().Objects;
  for (int row = 1; row <= objects.LastScanned(); ++row)
    count += objects[row].Kind == kind ? 1 : 0;
  return count;
}

inline std::string TemplateWith(const std::string& data) {
  return "KEXVER=4\r\n[HEADER]\r\n{Spacing=400;\\n}\r\n[DATA]\r\n" + data +
         "{Spacing=400;\\n}\r\n[FOOTER]\r\n{Spacing=400;\\n}\r\n";
}

}  // namespace kev::test
