// SPDX-License-Identifier: MIT
// A page with one section and one object, a designer that only records, and the sheet of the object as text.
#pragma once

#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "app/language.h"
#include "base/text_numbers.h"
#include "document/sections.h"
#include "document/text_measurer.h"
#include "properties/apply_sheet_edit.h"
#include "support/recording_surface.h"
#include "support/run_tool.h"
#include "support/sample_page.h"
#include "support/scripted_host.h"

namespace kev::test {

// Every call as a word: "push", "repaint", "box 928 critical".
class RecordingServices : public PageServices {
 public:
  explicit RecordingServices(Document& document) : document_(document) {
    const auto texts = LoadLanguage(KEV_PROGRAM_DIR "/Kev.lng", 'E');
    EXPECT_TRUE(texts);
    if (texts) texts_ = *texts;
  }

  std::vector<std::string> Calls;
  std::string Take() {
    std::string all;
    for (const std::string& call : Calls)
      all += (all.empty() ? "" : ", ") + call;
    Calls.clear();
    return all;
  }

  void PushUndo() override { Calls.push_back("push"); }
  void MarkChanged() override { Calls.push_back("mark"); }
  void FullRepaint() override {
    DeriveGeometry(document_);
    Calls.push_back("repaint");
  }
  void BandsChanged() override {
    NormaliseSubsections(document_, SetSortKeys(document_));
    DeriveGeometry(document_);
    Calls.push_back("bands");
  }
  void BuildRulers() override { Calls.push_back("rulers"); }
  void SelectionChanged() override { Calls.push_back("selection"); }
  void CommandsChanged() override { Calls.push_back("commands"); }
  const std::string& Text(int number) const override { return texts_.Text(number); }
  BoxAnswer ShowBox(int number, BoxIcon icon, BoxButtons) override {
    Calls.push_back("box " + std::to_string(number) + (icon == BoxIcon::Critical ? "" : " other icon"));
    return BoxAnswer::Ok;
  }
  void OpenContextMenu(ContextMenu) override { Calls.push_back("menu"); }
  void OpenProperties(int) override { Calls.push_back("properties"); }
  void ShowFieldScreen(const FieldScreenLook&) override { Calls.push_back("field"); }
  void HideFieldScreen() override { Calls.push_back("no field"); }
  void StartAllowTimer(int, std::function<void()>) override { Calls.push_back("timer"); }
  void RunPendingTool() override { Calls.push_back("tool"); }

 private:
  Document& document_;
  LanguageTexts texts_;
};

// Knows the pictures that it is given; an address counts as fetched into the cache.
class ListedPictures final : public PictureSource {
 public:
  std::map<std::string, TextExtent, std::less<>> Pictures;

  PictureAnswer Look(std::string_view path) override {
    const auto found = Pictures.find(path);
    if (found != Pictures.end()) return {std::string(path), found->second};
    if (path.starts_with("https://")) return {"\\Cache\\fetched.png", std::nullopt, true};
    if (path.ends_with(".txt")) return {std::string(path), std::nullopt};
    return {std::string(kMissingPicture), std::nullopt};
  }
};

class SheetTest : public testing::Test {
 protected:
  SheetTest() {
    document_.Columns[1] = {"$Col_01", 1000, ""};
    document_.Columns[4] = {"$Col_02", 5000, ""};
    bar_ = AddSubsection(document_, "[DATA]", 0, 1000);
    Bar().SectionName = "DATA]";
    Bar().SectionCursorY = 700;
    footer_ = AddSubsection(document_, "[FOOTER]", 1600, 500);
    document_.Objects[footer_].SectionName = "FOOTER]";
  }

  ObjectRecord& Bar() { return document_.Objects[bar_]; }
  ObjectRecord& Record() { return document_.Objects[object_]; }
  DocumentSettings& Settings() { return document_.Settings; }

  // An object of the kind with something in every field that a sheet shows, at 300 in the body of [DATA].
  ObjectRecord& Make(ObjectKind kind) {
    object_ = AddRow(document_, kind, "$Col_02", 700, 2400, 600);
    ObjectRecord& record = Record();
    record.Y = 300;
    record.OwnerName = "DATA]";
    record.AlignToGrid = record.ModifiableByEndUser = 1;
    record.PrintFlag = kFalse;
    record.LineWidth = 3;
    record.ColorR = 10;
    record.ColorG = 20;
    record.ColorB = 30;
    record.Bold = record.Underline = kTrue;
    record.Link = "https://shop.example";
    Fill(record);
    document_.Objects.CurrentObject = object_;
    return record;
  }

  SheetWork Work() {
    work_ = std::make_unique<PageWork>(
        PageWork{document_, pointer_, surface_, services_, measurer_, 1, DisplayFilter::All, {}, 0, 0});
    return {*work_, host_, pictures_, folder_ / "", place_};
  }
  // The sheet of what is selected.
  Sheet Shown() { return SheetOfSelection(document_, pointer_.MultiSelected, place_, {}); }
  int RowOfCaption(const Sheet& sheet, std::string_view caption) {
    for (std::size_t row = 0; row < sheet.Rows.size(); ++row)
      if (sheet.Rows[row].Caption == caption) return static_cast<int>(row) + 1;
    ADD_FAILURE() << "no row " << caption;
    return 0;
  }
  std::string ValueOf(std::string_view caption) {
    const Sheet sheet = Shown();
    const int row = RowOfCaption(sheet, caption);
    return row == 0 ? "" : sheet.Rows[static_cast<std::size_t>(row) - 1].Value;
  }

  using Typed = std::vector<std::pair<std::string_view, std::string>>;
  // Types the texts into the sheet of the selection and gives what was called.
  std::string Type(const Typed& typed) {
    const Sheet sheet = Shown();
    std::vector<RowEdit> edits;
    for (const auto& [caption, text] : typed)
      edits.push_back({RowOfCaption(sheet, caption), text});
    services_.Calls.clear();
    SheetWork work = Work();
    outcome_ = ApplySheetEdit(work, sheet, edits);
    return services_.Take();
  }
  std::string Type(std::string_view caption, std::string text) { return Type({{caption, std::move(text)}}); }

  // Title, then each row with its description, as the grid is given them.
  std::string TextOf(const Sheet& sheet) {
    std::string text = "title " + std::to_string(sheet.Title) + " " + SheetTitle(sheet, services_) +
                       (sheet.Enabled ? "" : " disabled") + "\n";
    int number = 0;
    for (const PropertyRow& row : sheet.Rows) {
      ++number;
      text += std::to_string(number) + " \"" + row.Caption + "\" " + MarkerText(row) + "; " +
              DescribedBy(sheet, number) + (row.Enabled ? "" : "; disabled") + "\n";
    }
    return text;
  }
  static std::string Golden(std::string_view name) {
    return ReadBytes(KEV_TEST_DATA_DIR "/properties/golden/" + std::string(name) + ".txt");
  }

  Document document_;
  PointerState pointer_;
  RecordingSurface surface_;
  RecordingServices services_{document_};
  BuiltInMeasurer measurer_;
  ScriptedHost host_;
  ListedPictures pictures_;
  TemporaryFolder folder_;
  SheetPlace place_ = SheetPlace::Docked;
  SheetOutcome outcome_;
  std::unique_ptr<PageWork> work_;
  int bar_ = 0, footer_ = 0, object_ = 0;

 private:
  std::string DescribedBy(const Sheet& sheet, int row) {
    const int number = sheet.Rows[static_cast<std::size_t>(row) - 1].Description;
    const auto words = DescriptionOf(sheet, row, services_);
    if (!words) return "no text";
    if (number < 0) return *words;
    EXPECT_EQ(*words, services_.Text(number));
    return "text " + std::to_string(number);
  }

  static void Fill(ObjectRecord& record) {
    switch (record.Kind) {
      case ObjectKind::Label:
        record.Content = "Total of @Items";
        record.Align = "r";
        record.CharSet = "238";
        record.Format = "Currency";
        record.CaseMode = "F";
        record.ValueType = "Number";
        record.Stretch = "120";
        return;
      case ObjectKind::TextBox:
        record.Content = "Name";
        record.CommandPayload = "@name";
        record.CharSet.clear();
        record.TextBoxFrameValue = "1";
        record.BackColorR = record.BackColorG = record.BackColorB = -1;
        record.ValueType = "Text";
        return;
      case ObjectKind::Barcode:
        record.Content = "@Code";
        record.BarcodeKind = "13";
        record.BarcodeSample = "1234567890123";
        record.BarWidth = 2;
        record.VerticalBar = kTrue;
        return;
      case ObjectKind::Picture:
        record.PicturePath = record.Content = record.PictureFile = "logo.png";
        record.PictureFixedWidth = kTrue;
        return;
      case ObjectKind::Qr:
        record.Content = "https://shop.example/@Id";
        record.Width = 600;
        record.BarcodeKind = "9999";
        return;
      case ObjectKind::Line:
        record.X2Value = "9000";
        record.LineFlag = kTrue;
        return;
      case ObjectKind::AnyLine:
        record.Width = -240;
        record.LineFlag = kTrue;
        return;
      case ObjectKind::Box:
        record.Filled = kTrue;
        return;
      case ObjectKind::Command:
        record.Content = "@@execute";
        record.ExecuteCommand = "KEVCMDZOOM";
        record.ExecuteArg2 = "Once";
        record.ExecuteArg3 = "Both";
        record.CommandPayload = "12";
        return;
      default:
        return;
    }
  }
};

}  // namespace kev::test
