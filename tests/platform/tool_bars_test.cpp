// SPDX-License-Identifier: MIT
#include "platform/forms/tool_bars.h"

#include <gtest/gtest.h>

#include <QMainWindow>
#include <QTest>
#include <QToolBar>
#include <QToolButton>
#include <filesystem>
#include <fstream>
#include <set>

#include "platform/fonts.h"
#include "platform/print_qt.h"
#include "platform/qt_host.h"
#include "platform/qt_measurer.h"
#include "platform/svg_icon.h"
#include "platform/temp_home.h"
#include "platform/text_bridge.h"

namespace kev {
namespace {

class ToolBarsTest : public testing::Test {
 protected:
  void SetUp() override { Make(); }
  void Make() {
    designer_ = std::make_unique<Designer>(host_, measurer_, home_.Input({}));
    ASSERT_TRUE(designer_->Load());
    window_ = std::make_unique<QMainWindow>();
    bars_ = new ToolBars(*window_, *designer_,
                         {[this](Command command) { run_.push_back(command); },
                          [this](std::string_view tool) { toggled_.emplace_back(tool); },
                          [this](FontTool tool) { pressed_.push_back(tool); }});
  }
  QToolButton* Button(std::string_view name) const {
    return window_->findChild<QToolButton*>(ToQString(name));
  }
  void Show(std::string_view tool) {
    bars_->Show([](Command command) { return command != Command::Undo; }, tool);
  }

  TempHome home_;
  FontCache fonts_;
  QtMeasurer measurer_{fonts_};
  QtHost host_;
  std::unique_ptr<Designer> designer_;
  std::unique_ptr<QMainWindow> window_;
  ToolBars* bars_ = nullptr;
  std::vector<Command> run_;
  std::vector<std::string> toggled_;
  std::vector<FontTool> pressed_;
};

TEST_F(ToolBarsTest, HoldAButtonForEachRowThatCanDoSomething) {
  for (const ToolButtonRow& row : kToolButtons) {
    const QToolButton* button = Button(row.name);
    EXPECT_EQ(button != nullptr, row.command || row.fontTool || !row.tool.empty()) << row.name;
    if (button == nullptr) continue;
    EXPECT_FALSE(button->accessibleName().isEmpty()) << row.name;
    EXPECT_EQ(button->parentWidget(), row.bar == ToolBarId::First ? &bars_->First() : &bars_->Second());
    EXPECT_EQ(button->isCheckable(), row.fontTool || !row.tool.empty()) << row.name;
  }
  EXPECT_EQ(bars_->First().objectName(), QStringLiteral("toolbar1"));
  EXPECT_EQ(bars_->Second().objectName(), QStringLiteral("toolbar2"));
}

TEST_F(ToolBarsTest, SayWhatTheyDoAndTheOneThatOpensSaysNothing) {
  EXPECT_EQ(Button("ImgButton6")->toolTip(), ToQString(designer_->Text(kTextTipInsertLabel)));
  EXPECT_EQ(Button("ImgButton9")->toolTip(), Button("ImgButton25")->toolTip());
  EXPECT_EQ(Button("ImgButton24")->toolTip(), QStringLiteral("insert a textbox"));
  EXPECT_EQ(Button("ImgButton2")->toolTip(), QString());
  EXPECT_EQ(Button("ImgButton2")->accessibleName(), ToQString(designer_->Text(kTextMenuOpen)));
}

TEST_F(ToolBarsTest, AClickRunsTheCommandOrTogglesTheTool) {
  Button("ImgButton3")->click();
  Button("ImgButton5")->click();
  Button("ImgButton7")->click();
  EXPECT_EQ(run_, (std::vector<Command>{Command::Save, Command::Properties}));
  EXPECT_EQ(toggled_, std::vector<std::string>{"PICTURE"});
}

TEST_F(ToolBarsTest, OnlyTheToolThatWaitsIsPressed) {
  Show("QR");
  for (const ToolButtonRow& row : kToolButtons) {
    if (row.tool.empty()) continue;
    EXPECT_EQ(Button(row.name)->isChecked(), row.tool == "QR") << row.name;
  }
  Show("");
  EXPECT_FALSE(Button("ImgButton25")->isChecked());
}

TEST_F(ToolBarsTest, TheButtonsForTextShowTheText) {
  FontTools tools;
  tools.Enabled = true;
  tools.Italic = true;
  bars_->ShowFontTools(tools);
  EXPECT_TRUE(Button("ImgButton11")->isChecked());
  EXPECT_FALSE(Button("ImgButton10")->isChecked());
  EXPECT_TRUE(Button("ImgButton10")->isEnabled());
  EXPECT_FALSE(Button("ImgButton13")->isEnabled()) << "nothing can be aligned";
  Button("ImgButton10")->click();
  EXPECT_EQ(pressed_, std::vector<FontTool>{FontTool::Bold});
  bars_->ShowFontTools({});
  EXPECT_FALSE(Button("ImgButton11")->isChecked());
  EXPECT_FALSE(Button("ImgButton11")->isEnabled());
}

TEST_F(ToolBarsTest, WhatCannotBeUsedIsDisabled) {
  Show("");
  EXPECT_FALSE(Button("ImgButton21")->isEnabled());
  EXPECT_TRUE(Button("ImgButton22")->isEnabled());
}

TEST_F(ToolBarsTest, AButtonWithoutItsImageShowsItsName) {
  home_.InstallProgram();
  Make();
  EXPECT_TRUE(Button("Imgbutton1")->icon().isNull());
  EXPECT_EQ(Button("Imgbutton1")->text(), ToQString(designer_->Text(kTextTipNewTemplate)));
}

TEST_F(ToolBarsTest, BothBarsHaveTheColourOfTheTheme) {
  home_.InstallProgram();
  std::ofstream(home_.Path("program/md1.trp")) << "TOOLBARCOLOR=255\r\n";
  Make();
  for (const QToolBar* bar : {&bars_->First(), &bars_->Second()}) {
    EXPECT_EQ(bar->palette().color(QPalette::Window), QColor(Qt::red));
    EXPECT_TRUE(bar->autoFillBackground());
  }
  std::ofstream(home_.Path("program/md1.trp")) << "TOOLBARCOLOR=-1\r\n";
  Make();
  EXPECT_FALSE(bars_->First().autoFillBackground());
  EXPECT_EQ(bars_->First().palette().color(QPalette::Window), window_->palette().color(QPalette::Window));
}

TEST(ButtonImages, CanAllBeDrawnAndAreAllDifferent) {
  std::set<QByteArray> seen;
  for (const ToolButtonRow& row : kToolButtons) {
    const QIcon icon = SvgIcon(QStringLiteral(KEV_TEST_DATA_DIR "/../assets/Pbms/") + ToQString(row.image) +
                               QStringLiteral(".prbm"));
    ASSERT_FALSE(icon.isNull()) << row.image;
    const QImage image = icon.pixmap(QSize(24, 24), 1.0).toImage().convertToFormat(QImage::Format_ARGB32);
    ASSERT_EQ(image.size(), QSize(24, 24)) << row.image;
    const QByteArray bytes(reinterpret_cast<const char*>(image.constBits()),
                           static_cast<qsizetype>(image.sizeInBytes()));
    EXPECT_NE(bytes.count('\0'), bytes.size()) << row.image;
    EXPECT_TRUE(seen.insert(bytes).second) << row.image;
  }
}

TEST(SvgIcons, AreSharpOnADenseScreenAndFadedWhereDisabled) {
  const QIcon icon = SvgIcon(QStringLiteral(KEV_TEST_DATA_DIR "/../assets/Pbms/boxICs.prbm"));
  const QPixmap dense = icon.pixmap(QSize(16, 16), 2.0);
  EXPECT_EQ(dense.size(), QSize(32, 32));
  const auto strongest = [&](QIcon::Mode mode) {
    const QImage image = icon.pixmap(QSize(24, 24), 1.0, mode).toImage();
    int most = 0;
    for (int y = 0; y < image.height(); ++y)
      for (int x = 0; x < image.width(); ++x)
        most = std::max(most, qAlpha(image.pixel(x, y)));
    return most;
  };
  EXPECT_GT(strongest(QIcon::Normal), 200);
  EXPECT_LT(strongest(QIcon::Disabled), 120);
}

TEST(SvgIcons, AreNullWhereThereIsNoDrawing) {
  EXPECT_TRUE(SvgIcon(QStringLiteral("/nowhere.prbm")).isNull());
}

}  // namespace
}  // namespace kev
