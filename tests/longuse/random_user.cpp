// SPDX-License-Identifier: MIT
#include "longuse/random_user.h"

#include <algorithm>
#include <array>
#include <utility>

#include "app/commands.h"
#include "app/designer_fixture.h"
#include "base/numbers.h"
#include "surface/object_area.h"
#include "surface/subsection_dialog.h"

namespace kev::test {
namespace {

constexpr auto kTexts = std::to_array<std::string_view>({"",
                                                         "0",
                                                         "1",
                                                         "-5",
                                                         "12",
                                                         "250",
                                                         "1000",
                                                         "1 440",
                                                         "0.5",
                                                         "00",
                                                         "-0",
                                                         "99999999999",
                                                         "1e9",
                                                         "$Col_01",
                                                         "$Col_02",
                                                         "$Nowhere",
                                                         "100abc",
                                                         "abc",
                                                         "$Col_01 + 50",
                                                         "$Col_03-120",
                                                         "Yes",
                                                         "No",
                                                         "255,0,0",
                                                         "-1,-1,-1",
                                                         "300,0,x",
                                                         "4",
                                                         "65535",
                                                         "@name",
                                                         "{x}",
                                                         "a{b=y}c",
                                                         "[DATA]",
                                                         ";",
                                                         ",",
                                                         "=",
                                                         "Arial",
                                                         "Courier",
                                                         "Arial|12|-1|0",
                                                         "A4",
                                                         "A5",
                                                         "EAN13",
                                                         "Code 39",
                                                         "123456789012",
                                                         "\xE9t\xE9",
                                                         "\x80 5",
                                                         "/no/file.png",
                                                         "http://127.0.0.1:1/a.png",
                                                         "@picture",
                                                         "100%",
                                                         "ITEMS:@a,@b"});

constexpr auto kGroupCommands = std::to_array<Command>(
    {Command::CutGroup, Command::CopyGroup, Command::DeleteSelection, Command::AlignHorizontally,
     Command::PlaceAt, Command::AlignToGrid, Command::ModifyEndUser, Command::PrintNoPrint});

}  // namespace

RandomUser::RandomUser(ScriptedHost& host, CountingView& view, std::string folder, std::uint32_t seed)
    : host_(host), view_(view), folder_(std::move(folder)), random_(seed), templates_(seed) {
  FillDialogs();
}

const std::vector<RandomUser::Action>& RandomUser::Actions() {
  static const std::vector<Action> actions = {{"click", 14, &RandomUser::Click},
                                              {"double click", 4, &RandomUser::DoubleClick},
                                              {"drag", 16, &RandomUser::Drag},
                                              {"key", 5, &RandomUser::PressKey},
                                              {"typing in place", 4, &RandomUser::TypeInPlace},
                                              {"command", 22, &RandomUser::RunCommand},
                                              {"group command", 6, &RandomUser::RunGroupCommand},
                                              {"tool", 6, &RandomUser::UseTool},
                                              {"sheet", 14, &RandomUser::EditSheet},
                                              {"button of a sheet", 2, &RandomUser::PressSheetButton},
                                              {"text tools", 5, &RandomUser::UseTextTools},
                                              {"column", 2, &RandomUser::ChooseColumn},
                                              {"view", 3, &RandomUser::ZoomAndFilter},
                                              {kUndoAndRedo, 6, &RandomUser::UndoAndRedo},
                                              {"quick panel", 2, &RandomUser::Quick},
                                              {"select many", 4, &RandomUser::SelectMany},
                                              {"save", 1, &RandomUser::SaveSomewhere},
                                              {"open", 1, &RandomUser::OpenSomething},
                                              {"new", 1, &RandomUser::StartAnew},
                                              {"test run", 1, &RandomUser::TryIt},
                                              {"finding", 1, &RandomUser::GoToFinding}};
  return actions;
}

std::string_view RandomUser::Act(Designer& designer) {
  designer_ = &designer;
  AnswerBoxes();
  int total = 0;
  for (const Action& action : Actions())
    total += action.weight;
  int chosen = Below(total);
  for (const Action& action : Actions()) {
    chosen -= action.weight;
    if (chosen >= 0) continue;
    detail_.clear();
    (this->*action.act)();
    return action.name;
  }
  return {};
}

// --- What is typed and pointed at --------------------------------------------------------------------------

std::string RandomUser::SomeText() {
  if (Chance(3))
    return std::string(static_cast<std::size_t>(Below(3000)), static_cast<char>('a' + Below(26)));
  if (Chance(30)) return std::to_string(Below(12000));
  return std::string(OneOf(kTexts));
}

std::string RandomUser::SomePosition() {
  return Chance(60) ? std::to_string(Below(12000)) : SomeText();
}

int RandomUser::SomeRow() {
  const ObjectTable& objects = std::as_const(*designer_).OpenDocument().Objects;
  for (int attempt = 0; attempt < 40; ++attempt) {
    const int row = 1 + Below(objects.LastScanned());
    if (objects[row].Kind != ObjectKind::None) return row;
  }
  return 0;
}

PointerInput RandomUser::SomePlace() {
  const Document& document = std::as_const(*designer_).OpenDocument();
  PointerInput input;
  const double zoom = designer_->ZoomFactor();
  if (Chance(20)) {
    input.X = Below(14000) * zoom;
    input.Y = (Below(20000) - 200) * zoom;
    return input;
  }
  const CanvasArea area = AreaOf(document.Objects[SomeRow()], document, zoom);
  input.X = area.Left + Below(200) / 100.0 * (area.Right - area.Left) / 2 + Below(30);
  input.Y = area.Top + Below(200) / 100.0 * (area.Bottom - area.Top) / 2 + Below(30);
  return input;
}

// --- Boxes and dialogs -------------------------------------------------------------------------------------

void RandomUser::AnswerBoxes() {
  host_.Answers.clear();
  for (int box = 0; box < 4; ++box)
    host_.Answers.push_back(OneOf(std::to_array(
        {BoxAnswer::Yes, BoxAnswer::Yes, BoxAnswer::No, BoxAnswer::Cancel, BoxAnswer::YesToAll})));
  host_.FilesToOpen.clear();
  host_.FilesToSave.clear();
  view_.ChosenColour.reset();
  const auto part = [this] { return static_cast<std::int16_t>(Below(256)); };
  if (Chance(70)) view_.ChosenColour = Colour{part(), part(), part()};
}

void RandomUser::FillDialogs() {
  view_.OnColumnsDialog = [this](ColumnsDialogRun& run) {
    for (int step = Below(5); step > 0; --step) {
      run.Choose(Below(12) - 1);
      if (Chance(60)) run.TypePosition(SomePosition());
      Chance(70) ? run.AddOrModify() : Chance(60) ? run.Remove() : run.Organize();
    }
  };
  view_.OnSetThisColumn = [this](SetColumnRun& run) {
    if (Chance(50)) run.TypeName(Chance(60) ? "$Name" + std::to_string(Below(5)) : SomeText());
    if (Chance(70)) run.TypePosition(SomePosition());
    if (Chance(80)) run.Accept();
  };
  view_.OnPlaceSelection = [this](PlaceSelectionRun& run) {
    if (Chance(70)) run.TypeY(SomePosition());
    if (Chance(70)) run.TypeX(SomePosition());
    if (Chance(80)) run.Accept();
  };
  view_.OnAlignToGrid = [this](AlignToGridRun& run) {
    run.Accept({.Check1 = Chance(50), .Check2 = Chance(50), .Combo1 = Chance(50)});
  };
  view_.OnModifyEndUser = view_.OnPrintNoPrint = [this](GroupFlagRun& run) { run.Accept(Chance(50)); };
  view_.OnSubsection = [this](SubsectionDialog& dialog, const std::function<bool()>& accept) {
    FillSubsection(dialog, accept);
  };
  view_.OnChartWizard = [this](ChartWizardRun& run) { FillChart(run); };
  view_.OnDocumentProperties = [this](DocumentPropertiesRun& run) { run.Accept(SomeText(), SomeText()); };
}

void RandomUser::FillSubsection(SubsectionDialog& dialog, const std::function<bool()>& accept) {
  if (Chance(60)) ChooseSection(dialog, OneOf(kBaseSections).id);
  if (Chance(60)) dialog.Name = Chance(70) ? "BAND" + std::to_string(Below(6)) : SomeText();
  if (!dialog.RecordTypes.empty() && Chance(30)) TickRecordType(dialog, 0, Chance(70));
  if (Chance(30)) TypeFields(dialog, SomeText());
  dialog.AtCurrentPosition = Chance(50);
  if (Chance(50)) dialog.Start = SomePosition();
  if (Chance(85)) accept();
}

void RandomUser::FillChart(ChartWizardRun& run) {
  for (int step = Below(6); step > 0; --step) {
    const WizardText& text = OneOf(WizardTexts());
    TypeText(run.Wizard(), text.Name, SomeText());
    LeaveText(run.Wizard(), text.Name);
    SetFlag(run.Wizard(), OneOf(WizardFlags()).Name, Chance(50));
  }
  if (Chance(75)) run.Accept();
}

// --- The page ----------------------------------------------------------------------------------------------

void RandomUser::Click() {
  PointerInput input = SomePlace();
  input.Button = Chance(85) ? PointerButton::Left : PointerButton::Right;
  input.Shift = Chance(25) ? kShiftKey : 0;
  designer_->Surface().PointerPress(input);
  designer_->Surface().PointerRelease(input);
}

void RandomUser::DoubleClick() {
  Click();
  PointerInput input = SomePlace();
  input.Button = PointerButton::Left;
  designer_->Surface().DoubleClick(input);
}

void RandomUser::Drag() {
  DesignSurface& surface = designer_->Surface();
  PointerInput input = SomePlace();
  input.Source = static_cast<PointerSource>(Below(7));
  input.Index = input.Source == PointerSource::Page ? 0 : 1 + Below(8);
  if (input.Source == PointerSource::Overlay) input.Index = 1 + Below(4);
  if (input.Source == PointerSource::LineEnd || input.Source == PointerSource::LineBody)
    input.Index = 1 + Below(2);
  input.Button = PointerButton::Left;
  input.Shift = Chance(15) ? kShiftKey : 0;
  surface.PointerPress(input);
  for (int step = 1 + Below(4); step > 0; --step) {
    input.X += Below(1200) - 600;
    input.Y += Below(1200) - 600;
    surface.PointerMove(input);
  }
  if (Chance(10)) surface.CancelGesture();
  surface.PointerRelease(input);
  input.Button = PointerButton::None;
  surface.PointerMove(input);
}

void RandomUser::PressKey() {
  struct Key {
    int code;
    std::string_view text;
  };
  // Delete, Escape, Enter, F2, Backspace, Home, a letter, an arrow.
  static constexpr auto kKeys = std::to_array<Key>(
      {{46, ""}, {27, ""}, {13, "\r"}, {113, ""}, {8, "\b"}, {36, ""}, {65, "a"}, {37, ""}});
  const Key& key = OneOf(kKeys);
  designer_->Surface().KeyDown(key.code, Chance(15) ? kShiftKey : 0, key.text);
}

void RandomUser::TypeInPlace() {
  DesignSurface& surface = designer_->Surface();
  surface.KeyDown(113, 0, "");
  if (!surface.Edit().Active()) return;
  surface.FieldTextChanged(SomeText());
  surface.EndFieldScreen(Chance(80));
}

void RandomUser::RunCommand() {
  const CommandRow& row = OneOf(CommandRows());
  // Undo and redo, and those that open, save and close, are actions of their own.
  if (row.id == Command::Undo || row.id == Command::Redo || !IsPageCommand(row.id)) return;
  detail_ = " " + std::string(row.name);
  if (designer_->Enabled(row.id)) designer_->Run(row.id);
}

void RandomUser::RunGroupCommand() {
  const Command command = OneOf(kGroupCommands);
  detail_ = " " + std::string(RowOf(command).name);
  if (designer_->Enabled(command)) designer_->Run(command);
}

void RandomUser::UseTool() {
  designer_->Surface().ToggleTool(OneOf(kInsertions).tool);
  if (Chance(50)) host_.FilesToOpen.emplace_back(KEV_EXAMPLES_DIR "/logo.png");
  Click();
}

void RandomUser::SelectMany() {
  Chance(40) ? static_cast<void>(designer_->Run(Command::SelectAll)) : Click();
  for (int more = Below(4); more > 0; --more) {
    PointerInput input = SomePlace();
    input.Button = PointerButton::Left;
    input.Shift = kShiftKey;
    designer_->Surface().PointerPress(input);
    designer_->Surface().PointerRelease(input);
  }
}

void RandomUser::UndoAndRedo() {
  for (int step = 1 + Below(6); step > 0; --step)
    designer_->Run(Chance(60) ? Command::Undo : Command::Redo);
}

void RandomUser::GoToFinding() {
  designer_->Surface().GoToObject(SomeRow());
}

// --- Panels and tools --------------------------------------------------------------------------------------

void RandomUser::EditSheet() {
  const std::vector<PropertyRow>& rows = designer_->Sheets().Shown().Rows;
  if (rows.empty()) return;
  const int index = Below(static_cast<int>(rows.size()));
  const PropertyRow& row = rows[static_cast<std::size_t>(index)];
  const std::string text = !row.Items.empty() && Chance(70) ? OneOf(row.Items) : SomeText();
  detail_ = " " + row.Caption + " := " + text;
  designer_->Sheets().Edited(index + 1, text);
}

void RandomUser::PressSheetButton() {
  const auto rows = static_cast<int>(designer_->Sheets().Shown().Rows.size());
  if (rows > 0) designer_->Sheets().PressButton(1 + Below(rows));
}

void RandomUser::UseTextTools() {
  DesignSurface& surface = designer_->Surface();
  switch (Below(4)) {
    case 0:
      surface.ChooseFont(OneOf(std::to_array<std::string_view>({"Arial", "Courier New", "a;b", ""})));
      break;
    case 1:
      surface.ChooseFontSize(SomeText());
      break;
    case 2:
      surface.PressFontTool(static_cast<FontTool>(Below(6)));
      break;
    default:
      surface.ChooseTextColour();
      break;
  }
}

void RandomUser::ChooseColumn() {
  designer_->Surface().ChooseColumn(Below(8));
}

void RandomUser::ZoomAndFilter() {
  switch (Below(4)) {
    case 0:
      designer_->SetZoom(Chance(70) ? std::string(OneOf(kZoomList)) : SomeText());
      break;
    case 1:
      designer_->SetFilter(static_cast<DisplayFilter>(Below(3)));
      break;
    case 2:
      designer_->Surface().NextRulerMode();
      break;
    default:
      designer_->Surface().ToggleDrawGrid();
      break;
  }
}

void RandomUser::Quick() {
  Chance(70) ? designer_->Quick().StoreText(SomeText()) : designer_->Quick().SetAlignToGrid(Chance(50));
}

// --- Files -------------------------------------------------------------------------------------------------

void RandomUser::SaveSomewhere() {
  host_.FilesToSave.emplace_back(folder_ + "/saved" + std::to_string(Below(5)) + ".kev");
  host_.FiltersToTake.assign(1, Below(2));
  Chance(50) ? designer_->Save() : designer_->SaveAs();
}

void RandomUser::OpenSomething() {
  const std::string path = folder_ + "/opened" + std::to_string(Below(5)) + ".kev";
  switch (Below(5)) {
    case 0:
      WriteBytes(path, templates_.Sane());
      break;
    case 1:
      WriteBytes(path, templates_.Quirky());
      break;
    case 2:
      WriteBytes(path, templates_.Hostile());
      break;
    case 3:
      WriteBytes(path, ReadBytes(KEV_EXAMPLES_DIR "/invoice.kev"));
      break;
    default:
      break;
  }
  designer_->AskAndOpen(Chance(80) ? path : folder_ + "/saved" + std::to_string(Below(5)) + ".kev");
}

void RandomUser::OpenFullTemplate(Designer& designer) {
  std::string labels;
  for (int label = 0; label < 1980; ++label)
    labels += "{" + std::to_string(label % 10 * 1000) + ";}Label " + std::to_string(label) +
              (label % 10 == 9 ? "{\\n}\r\n" : "{}\r\n");
  WriteBytes(folder_ + "/full.kev", TemplateWith(labels));
  designer.OpenTemplate(folder_ + "/full.kev");
}

void RandomUser::StartAnew() {
  if (Chance(40)) designer_->AskAndNew();
}

void RandomUser::TryIt() {
  switch (Below(4)) {
    case 0:
      designer_->RunTest();
      break;
    case 1:
      designer_->ShowTemplateCode();
      break;
    case 2:
      designer_->ShowDataFile();
      break;
    default:
      designer_->ShowDocumentProperties();
      break;
  }
}

}  // namespace kev::test
