// SPDX-License-Identifier: MIT
// The chart wizard through the designer: how it opens, what is refused, what accepting does.
#include "app/chart_runs.h"

#include <gtest/gtest.h>

#include <random>
#include <utility>

#include "app/designer_fixture.h"
#include "chart/slots.h"
#include "document/sections.h"
#include "surface/chart_dialog.h"

namespace kev {
namespace {

using test::CountOf;

constexpr std::string_view kChart =
    "{Graph_Height=2000;Graph_Width=3000}\r\n{Graph_Title=Sales}\r\n{Graph_serie_1_values=1,2,3}\r\n"
    "{Buildgraph=600,300;\\n}\r\n";

class ChartRun : public test::DesignerTest {
 protected:
  void Open(const std::string& data = std::string(kChart)) {
    designer_ = Start({Made("a.kev", Template(data))});
    row_ = RowOfKind(ObjectKind::Chart);
    ASSERT_NE(row_, 0);
  }
  static std::string Template(const std::string& data) {
    return "KEXVER=4\r\n[HEADER]\r\n{Spacing=400;\\n}\r\n[DATA]\r\n" + data +
           "{Spacing=4000;\\n}\r\n[FOOTER]\r\n{Spacing=400;\\n}\r\n";
  }
  int RowOfKind(ObjectKind kind) const {
    const ObjectTable& objects = std::as_const(*designer_).OpenDocument().Objects;
    for (int row = 1; row <= objects.LastScanned(); ++row)
      if (objects[row].Kind == kind) return row;
    return 0;
  }
  ObjectRecord& Chart() { return designer_->OpenDocument().Objects[row_]; }
  const ObjectRecord& Bar() {
    const ObjectTable& objects = designer_->OpenDocument().Objects;
    return objects[OwnerIndex(designer_->OpenDocument()).OwnerOf(row_)];
  }
  void Select() {
    designer_->OpenDocument().Objects.CurrentObject = row_;
    designer_->Surface().SelectionChanged();
  }
  // Opens the wizard on the chart and does this in it.
  void InWizard(const std::function<void(ChartWizardRun&)>& user) {
    int opened = 0;
    view_.OnChartWizard = [&](ChartWizardRun& run) {
      ++opened;
      user(run);
    };
    Select();
    designer_->Surface().OpenProperties(row_);
    EXPECT_EQ(opened, 1);
  }
  // Types one text and accepts.
  bool Accepts(std::string_view control, const std::string& text) {
    bool accepted = false;
    InWizard([&](ChartWizardRun& run) {
      TypeText(run.Wizard(), control, text);
      accepted = run.Accept();
    });
    return accepted;
  }

  std::unique_ptr<Designer> designer_;
  int row_ = 0;
};

// --- Ways to it

TEST_F(ChartRun, OpensByThePropertiesOfAChartAndByItsRowInTheSheet) {
  Open();
  int opened = 0;
  view_.OnChartWizard = [&](ChartWizardRun& run) {
    EXPECT_EQ(run.Wizard().Row, row_);
    EXPECT_EQ(run.Wizard().Now.graph_title, "Sales");
    ++opened;
  };
  Select();
  designer_->Surface().OpenProperties(row_);
  EXPECT_EQ(opened, 1);
  designer_->Sheets().PressButton(1);
  EXPECT_EQ(opened, 2);
  designer_->Sheets().DoubleClicked();
  EXPECT_EQ(opened, 3);
}

TEST_F(ChartRun, OpensBehindAnInsertionFromTheMenuAndNotByTheTool) {
  Open();
  int opened = 0;
  view_.OnChartWizard = [&](ChartWizardRun& run) {
    ++opened;
    EXPECT_EQ(run.Wizard().Row, designer_->OpenDocument().Objects.CurrentObject);
    EXPECT_EQ(run.Wizard().Now.series[0].Comboserie, " BARROUND");
    EXPECT_EQ(run.Wizard().Now.series[7].serie_name, "Serie 8");
    EXPECT_TRUE(run.Wizard().Now.option_2d);
    TypeText(run.Wizard(), "graph_title", "New");
    EXPECT_TRUE(run.Accept());
  };
  PointerState& pointer = designer_->Surface().Pointer();
  pointer.LastX = 900;
  pointer.LastY = Bar().AbsoluteY + 900;
  EXPECT_TRUE(designer_->Run(Command::InsertChart));
  EXPECT_EQ(opened, 1);
  EXPECT_EQ(CountOf(*designer_, ObjectKind::Chart), 2);
  const ObjectTable& objects = designer_->OpenDocument().Objects;
  EXPECT_EQ(objects[objects.CurrentObject].ChartValues[slot::kTitle], "New");
  pointer.PendingTool = "CHART";
  designer_->Guarded([&] { designer_->Surface().RunPendingTool(); });
  EXPECT_EQ(CountOf(*designer_, ObjectKind::Chart), 3);
  EXPECT_EQ(opened, 1);
}

TEST_F(ChartRun, ItsCaptionInTheMenuTellsOfTheDialog) {
  EXPECT_EQ(CommandCaption(RowOf(Command::InsertChart), "Chart"), "Chart ...");
}

// --- Accepting

TEST_F(ChartRun, AnUntouchedAcceptLeavesTheRecordEqual) {
  Open();
  const ObjectRecord before = Chart();
  InWizard([](ChartWizardRun& run) { EXPECT_TRUE(run.Accept()); });
  EXPECT_TRUE(Chart() == before);
}

TEST_F(ChartRun, CancellingKeepsTheRecordAndTakesNoSnapshot) {
  Open();
  const ObjectRecord before = Chart();
  InWizard([](ChartWizardRun& run) {
    TypeText(run.Wizard(), "graph_title", "Other");
    PickColour(run.Wizard(), kPieSample, 0x010203);
  });
  EXPECT_TRUE(Chart() == before);
  EXPECT_FALSE(designer_->Modified());
  EXPECT_FALSE(designer_->Enabled(Command::Undo));
}

TEST_F(ChartRun, StoresTheChangedTextsBehindOneSnapshot) {
  Open();
  const std::vector<std::string> before = Chart().ChartValues;
  InWizard([](ChartWizardRun& run) {
    ChartWizard& wizard = run.Wizard();
    TypeText(wizard, "graph_title", "Other");
    TypeText(wizard, "serie_2_values", "@sold");
    ChooseOption(wizard, "option_pie");
    ChoosePieColour(wizard, 3);
    PickColour(wizard, kPieSample, 0x010203);
    EXPECT_TRUE(run.Accept());
  });
  std::vector<std::string> expected = before;
  expected[slot::kTitle] = "Other";
  expected[slot::OfSeries(2, slot::SeriesPart::Values)] = "@sold";
  expected[slot::kType] = "PIE";
  expected[slot::PieColor(3)] = "1,2,3";
  EXPECT_EQ(Chart().ChartValues, expected);
  EXPECT_TRUE(designer_->Modified());
  EXPECT_TRUE(designer_->Run(Command::Undo));
  EXPECT_EQ(Chart().ChartValues, before);
  EXPECT_FALSE(designer_->Enabled(Command::Undo));
}

TEST_F(ChartRun, StoresPlaceAndSize) {
  Open();
  const int redrawn = view_.Redrawn;
  InWizard([](ChartWizardRun& run) {
    TypeText(run.Wizard(), "combo_graphX", " .5 ");
    TypeText(run.Wizard(), "combo_graphY", "750 twips");
    TypeText(run.Wizard(), "graph_width", "5000");
    TypeText(run.Wizard(), "graph_height", "1");
    EXPECT_TRUE(run.Accept());
  });
  EXPECT_EQ(Chart().XValue, "0.5");
  EXPECT_EQ(Chart().Y, 750);
  EXPECT_EQ(Chart().AbsoluteY, Bar().AbsoluteY + 400 + 750);
  EXPECT_EQ(Chart().Width, 5000);
  EXPECT_EQ(Chart().Height, 1);
  EXPECT_GT(view_.Redrawn, redrawn);
}

TEST_F(ChartRun, NamesTheImageOfThisRun) {
  Open();
  Chart().PictureFile = "old.bmp";
  InWizard([](ChartWizardRun& run) { EXPECT_TRUE(run.Accept()); });
  EXPECT_EQ(Chart().PictureFile, ChartImageName(designer_->Images(), row_));
}

TEST_F(ChartRun, MakesTheImageFromTheStoredRecordAndPaintsThen) {
  Open();
  Select();
  ChartWizard wizard = OpenedChartWizard(Chart(), row_);
  TypeText(wizard, "graph_title", "Other");
  const int redrawn = view_.Redrawn;
  PageWork work = designer_->Surface().Work();
  int made = 0;
  EXPECT_TRUE(ApplyChartWizard(work, wizard, [&] {
    ++made;
    EXPECT_EQ(Chart().ChartValues[slot::kTitle], "Other");
    EXPECT_EQ(Chart().PictureFile, ChartImageName(designer_->Images(), row_));
    EXPECT_TRUE(designer_->Enabled(Command::Undo));
    EXPECT_EQ(view_.Redrawn, redrawn);
  }));
  EXPECT_EQ(made, 1);
  EXPECT_GT(view_.Redrawn, redrawn);
}

TEST_F(ChartRun, ABackgroundThatWasNotLeftIsClampedWhenItIsAccepted) {
  Open();
  EXPECT_TRUE(Accepts("graph_background", "300,0,0,0,0,0"));
  EXPECT_EQ(Chart().ChartValues[slot::kBackGround], "255,0,0,0,0,0");
}

TEST_F(ChartRun, LiesAtYWhereNoSubsectionOwnsIt) {
  Open();
  Chart().OwnerName = "NOBODY";
  ChartWizard wizard = OpenedChartWizard(Chart(), row_);
  TypeText(wizard, "combo_graphY", "90000");
  PageWork work = designer_->Surface().Work();
  EXPECT_EQ(RefusalOf(wizard, work.document), 0);
  EXPECT_TRUE(ApplyChartWizard(work, wizard, [] {}));
  EXPECT_EQ(Chart().AbsoluteY, 90000);
}

TEST_F(ChartRun, LoweringTheNumberOfSeriesKeepsTheData) {
  Open(
      "{Graph_Height=2000;Graph_Width=3000}\r\n{Graph_series=3}\r\n{Graph_serie_3_values=7,8}\r\n"
      "{Buildgraph=600,300;\\n}\r\n");
  EXPECT_TRUE(Accepts("Comboseries", "1"));
  EXPECT_EQ(Chart().ChartValues[slot::kSeries], "1");
  EXPECT_EQ(Chart().ChartValues[slot::OfSeries(3, slot::SeriesPart::Values)], "7,8");
}

// --- Refusals

TEST_F(ChartRun, RefusesWhatIsNoPlaceOrSizeAndStoresNothing) {
  struct Row {
    std::string_view control;
    std::string text;
    int refusal;
  };
  Open();
  const Row rows[] = {
      {"combo_graphX", "abc", kTextPositionRefused},
      {"combo_graphX", "$Nowhere", kTextPositionRefused},
      {"combo_graphX", "1,2", kTextPositionRefused},
      {"combo_graphX", "5;", kTextPositionRefused},
      {"combo_graphX", "5}", kTextPositionRefused},
      {"combo_graphX", "-0", kTextPositionRefused},
      {"combo_graphX", "-5", kTextNegativeValue},
      {"graph_width", "0", kTextNegativeValue},
      {"graph_width", "", kTextNegativeValue},
      {"graph_height", "-20", kTextNegativeValue},
      {"graph_height", "wide", kTextNegativeValue},
      {"combo_graphY", "-1", kTextPositionOutsideSection},
      {"combo_graphY", "90000", kTextPositionOutsideSection},
  };
  const ObjectRecord before = Chart();
  for (const Row& row : rows) {
    InWizard([&](ChartWizardRun& run) {
      TypeText(run.Wizard(), "graph_title", "Lost");
      TypeText(run.Wizard(), row.control, row.text);
      EXPECT_FALSE(run.Accept()) << row.control << ' ' << row.text;
      EXPECT_EQ(run.Wizard().Now.graph_title, "Lost");
    });
    ExpectMessage(*designer_, row.refusal);
    EXPECT_TRUE(Chart() == before) << row.text;
    EXPECT_FALSE(designer_->Enabled(Command::Undo));
  }
}

TEST_F(ChartRun, TellsTheFirstReasonAlone) {
  Open();
  InWizard([&](ChartWizardRun& run) {
    TypeText(run.Wizard(), "combo_graphX", "abc");
    TypeText(run.Wizard(), "graph_width", "0");
    TypeText(run.Wizard(), "combo_graphY", "-1");
    EXPECT_FALSE(run.Accept());
    ExpectMessage(*designer_, kTextPositionRefused);
    TypeText(run.Wizard(), "combo_graphX", "100");
    EXPECT_FALSE(run.Accept());
    ExpectMessage(*designer_, kTextNegativeValue);
    TypeText(run.Wizard(), "graph_width", "10");
    EXPECT_FALSE(run.Accept());
    ExpectMessage(*designer_, kTextPositionOutsideSection);
    TypeText(run.Wizard(), "combo_graphY", "0");
    EXPECT_TRUE(run.Accept());
  });
}

TEST_F(ChartRun, ALeftPlaceIsNotLookedAt) {
  Open("{Graph_Title=Sales}\r\n{Buildgraph=$Gone,300;\\n}\r\n");
  EXPECT_EQ(Chart().Width, 0);
  EXPECT_TRUE(Accepts("graph_title", "Kept"));
  EXPECT_EQ(Chart().XValue, "$Gone");
  EXPECT_EQ(Chart().ChartValues[slot::kTitle], "Kept");
}

TEST_F(ChartRun, AnEmptyPlaceReplacesNothing) {
  Open();
  InWizard([](ChartWizardRun& run) {
    TypeText(run.Wizard(), "combo_graphX", "");
    TypeText(run.Wizard(), "combo_graphY", " ");
    EXPECT_TRUE(run.Accept());
  });
  EXPECT_EQ(Chart().XValue, "600");
  EXPECT_EQ(Chart().Y, 300);
}

TEST_F(ChartRun, TakesAPlaceAtAColumn) {
  Open();
  designer_->OpenDocument().Columns[4] = {"$Col_04", 1440, ""};
  InWizard([](ChartWizardRun& run) {
    EXPECT_EQ(run.Columns(), std::vector<std::string>{"$Col_04"});
    TypeText(run.Wizard(), "combo_graphX", "$Col_04 + 60");
    EXPECT_TRUE(run.Accept());
  });
  EXPECT_EQ(Chart().XValue, "$Col_04 + 60");
}

TEST_F(ChartRun, OffersTheHeightsOfItsNeighbours) {
  Open("{600;}Name{\\n}\r\n{900;}Town{\\n}\r\n" + std::string(kChart) + "{100;}A{500;}B{\\n}\r\n");
  std::vector<std::string> expected;
  const ObjectTable& objects = std::as_const(*designer_).OpenDocument().Objects;
  for (int row = 1; row <= objects.LastScanned(); ++row)
    if (objects[row].Kind == ObjectKind::Label) expected.push_back(std::to_string(objects[row].Y));
  ASSERT_EQ(expected.size(), 4U);
  ASSERT_EQ(expected[2], expected[3]);
  expected.pop_back();
  InWizard([&](ChartWizardRun& run) { EXPECT_EQ(run.Heights(), expected); });
}

// --- The picture behind the chart

TEST_F(ChartRun, BrowsesForAnImage) {
  Open();
  host_.FilesToOpen = {std::nullopt, Work("back.bmp")};
  InWizard([this](ChartWizardRun& run) {
    run.BrowsePicture();
    EXPECT_EQ(run.Wizard().Now.Background_picture, "");
    EXPECT_TRUE(run.Wizard().Now.OptionBack);
    run.BrowsePicture();
    EXPECT_EQ(run.Wizard().Now.Background_picture, Work("back.bmp"));
    EXPECT_TRUE(run.Wizard().Now.OptionPicture);
  });
  ASSERT_EQ(host_.Choices.size(), 2U);
  EXPECT_EQ(host_.Choices[0].Title, "Image");
  EXPECT_EQ(host_.Choices[0].Filters[0].first, "Image file");
  EXPECT_EQ(host_.Choices[0].Filters[0].second, "*.bmp *.jpg *.gif *.BMP *.JPG *.GIF");
  EXPECT_EQ(host_.Choices[0].DefaultEnding, "bmp");
}

TEST_F(ChartRun, RefusesAPictureThatTheTemplateCannotName) {
  Open();
  host_.FilesToOpen = {std::string("/tmp/\xD0\xB6.bmp")};
  InWizard([](ChartWizardRun& run) {
    run.BrowsePicture();
    EXPECT_EQ(run.Wizard().Now.Background_picture, "");
  });
  ExpectMessage(*designer_, kTextCharacterNotInPage);
}

TEST_F(ChartRun, AClickOnThePictureShowsItByItself) {
  Open();
  const std::string file = Made("back.bmp", "BM");
  InWizard([&](ChartWizardRun& run) {
    run.ShowPicture();
    EXPECT_TRUE(host_.Programs.empty());
    TypeText(run.Wizard(), "Background_picture", "back.bmp");
    run.ShowPicture();
    ASSERT_EQ(host_.Programs.size(), 1U);
    EXPECT_EQ(host_.Programs[0].Start.Program, root_ / "program/viewpics");
    EXPECT_EQ(host_.Programs[0].Start.Arguments, std::vector<std::string>{file});
    host_.MissingPrograms = {root_ / "program/viewpics"};
    run.ShowPicture();
  });
  ExpectMessage(*designer_, kTextProgramNotStarted);
}

TEST_F(ChartRun, FindsTheImagesOfItsButtons) {
  Open();
  InWizard([this](ChartWizardRun& run) {
    EXPECT_EQ(run.ButtonImage("boldregular"), root_ / "program/Pbms/boldregular.prbm");
  });
  for (const char* name : {"boldregular", "italicregular", "underlineregular"})
    EXPECT_TRUE(std::filesystem::exists(std::string(KEV_TEST_DATA_DIR "/../assets/Pbms/") + name + ".prbm"));
}

// --- From file to file

std::string RandomValue(std::mt19937& random) {
  static const std::vector<std::string> kTexts = {
      "",        "Y",  "y",   "1", "N",    "8",         "2D",   "3D",      "PIE",        "Bar",
      "BarFlat", "xy", "a b", "9", "@abc", "255,128,0", "7,-3", "Caf\xE9", "1,2,3,4,5,6"};
  return kTexts[std::uniform_int_distribution<std::size_t>(0, kTexts.size() - 1)(random)];
}

// What a template never gives back: the formats, the gradient beside a picture, any word for "no titles".
std::vector<std::string> Comparable(std::vector<std::string> values) {
  for (int n = 1; n <= kChartSeriesCount; ++n)
    values[slot::OfSeries(n, slot::SeriesPart::Format)].clear();
  if (!values[slot::kBackGroundPicture].empty()) values[slot::kBackGround].clear();
  if (values[slot::kShowSeriesTitles] != "Y") values[slot::kShowSeriesTitles] = "N";
  return values;
}

TEST_F(ChartRun, EveryValueComesThroughTheWizardAndTheFile) {
  Open();
  std::mt19937 random(42);
  for (int run = 0; run < 25; ++run) {
    for (std::size_t at = 0; at < kChartKeyCount; ++at)
      Chart().ChartValues[at] = RandomValue(random);
    const std::vector<std::string> before = Chart().ChartValues;
    InWizard([](ChartWizardRun& wizard) { EXPECT_TRUE(wizard.Accept()); });
    ASSERT_EQ(Chart().ChartValues, before);
    ASSERT_TRUE(designer_->Save());
    ASSERT_TRUE(designer_->OpenTemplate(Work("a.kev")));
    row_ = RowOfKind(ObjectKind::Chart);
    ASSERT_EQ(Comparable(Chart().ChartValues), Comparable(before)) << run;
    EXPECT_EQ(Chart().Width, 3000);
    EXPECT_EQ(Chart().Height, 2000);
  }
}

TEST_F(ChartRun, WhatIsTypedInEveryControlIsThereAfterReopening) {
  Open();
  std::mt19937 random(7);
  for (int round = 0; round < 15; ++round) {
    Wizard1State typed;
    InWizard([&](ChartWizardRun& run) {
      for (const WizardText& control : WizardTexts())
        if (control.Slot != kNoChartSlot && control.Rule == WizardRule::Plain)
          TypeText(run.Wizard(), control.Name, RandomValue(random));
      for (const WizardText& control : WizardTexts()) {
        if (control.Rule == WizardRule::Colour)
          PickColour(run.Wizard(), control.SampleName, static_cast<Rgb>(random() & 0xFFFFFF));
        if (control.Rule == WizardRule::SeriesType)
          TypeText(run.Wizard(), control.Name, std::string(kSeriesTypes[random() % kSeriesTypes.size()]));
      }
      for (const WizardFlag& control : WizardFlags())
        SetFlag(run.Wizard(), control.Name, random() % 2 == 0);
      typed = run.Wizard().Now;
      EXPECT_TRUE(run.Accept());
    });
    ASSERT_TRUE(designer_->Save());
    ASSERT_TRUE(designer_->OpenTemplate(Work("a.kev")));
    row_ = RowOfKind(ObjectKind::Chart);
    const Wizard1State shown = OpenedChartWizard(Chart(), row_).Now;
    for (const WizardText& control : WizardTexts())
      if (!control.Name.ends_with("_format")) {
        ASSERT_EQ(control.Text.In(shown), control.Text.In(typed)) << control.Name;
      }
    for (const WizardFlag& control : WizardFlags())
      ASSERT_EQ(control.Flag.In(shown), control.Flag.In(typed)) << control.Name;
  }
}

}  // namespace
}  // namespace kev
