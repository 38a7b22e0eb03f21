// SPDX-License-Identifier: MIT
// The colour picker and the background composer as forms.
#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSlider>
#include <QTest>

#include "app/language.h"
#include "chart/gradient.h"
#include "platform/forms/back01.h"
#include "platform/forms/colour_widgets.h"
#include "platform/forms/show_colors.h"
#include "platform/print_qt.h"

namespace kev {
namespace {

LanguageTexts TextsOf(char letter) {
  const Result<LanguageTexts> texts = LoadLanguage(KEV_PROGRAM_DIR "/Kev.lng", letter);
  EXPECT_TRUE(texts);
  return texts ? *texts : LanguageTexts();
}

template <typename Child>
Child& Find(QWidget& dialog, const char* name) {
  Child* child = dialog.findChild<Child*>(QLatin1String(name));
  if (child == nullptr) throw std::runtime_error(std::string("no control ") + name);
  return *child;
}

void TypeOver(QLineEdit& edit, const QString& text) {
  edit.setFocus();
  edit.selectAll();
  QTest::keyClicks(&edit, text);
}

void ShowActive(QWidget& dialog) {
  dialog.show();
  dialog.activateWindow();
  EXPECT_TRUE(QTest::qWaitForWindowActive(&dialog));
}

void ExpectRoomForWords(const QWidget& dialog, char letter) {
  for (const QLabel* label : dialog.findChildren<QLabel*>())
    EXPECT_GE(label->width(), label->sizeHint().width()) << letter << label->text().toStdString();
  for (const QPushButton* button : dialog.findChildren<QPushButton*>())
    EXPECT_GE(button->width(), button->minimumSizeHint().width()) << letter;
}

class ShowColorsForm : public testing::Test {
 protected:
  ShowColorsForm() { ShowActive(picker); }

  LanguageTexts texts = TextsOf('E');
  ShowColors picker{0x0A80FFU, texts};
};

TEST_F(ShowColorsForm, OpensWithTheCallersColourInEveryControl) {
  EXPECT_EQ(picker.windowTitle(), QStringLiteral("Colour"));
  EXPECT_EQ(Find<QSlider>(picker, "red").value(), 10);
  EXPECT_EQ(Find<QSlider>(picker, "green").value(), 128);
  EXPECT_EQ(Find<QSlider>(picker, "blue").value(), 255);
  EXPECT_EQ(Find<QLineEdit>(picker, "Green_value").text(), QStringLiteral("128"));
  EXPECT_EQ(Find<ColourSwatch>(picker, "resultantcolor").Colour(), 0x0A80FFU);
  for (const char* name : {"red", "green", "blue", "red_value", "Green_value", "blue_value", "solidcolor",
                           "resultantcolor", "Command1", "Command2"})
    EXPECT_FALSE(Find<QWidget>(picker, name).accessibleName().isEmpty()) << name;
}

TEST_F(ShowColorsForm, SlidersAndBoxesMoveEachOther) {
  Find<QSlider>(picker, "red").setValue(77);
  EXPECT_EQ(Find<QLineEdit>(picker, "red_value").text(), QStringLiteral("77"));
  TypeOver(Find<QLineEdit>(picker, "blue_value"), QStringLiteral("9"));
  EXPECT_EQ(Find<QSlider>(picker, "blue").value(), 9);
  TypeOver(Find<QLineEdit>(picker, "blue_value"), QStringLiteral("999"));
  EXPECT_EQ(Find<QLineEdit>(picker, "blue_value").text(), QStringLiteral("255"));
  EXPECT_EQ(Find<ColourSwatch>(picker, "resultantcolor").Colour(), 0x4D80FFU);
  EXPECT_EQ(picker.Result(), 0x4D80FFU);
}

TEST_F(ShowColorsForm, AClickOnThePaletteTakesThePixelsColour) {
  auto& palette = Find<PalettePicture>(picker, "solidcolor");
  for (const QPoint at : {QPoint(1, 0), QPoint(40, 95), QPoint(120, 150), palette.rect().bottomRight()}) {
    QTest::mouseClick(&palette, Qt::LeftButton, {}, at);
    EXPECT_EQ(picker.Result(), palette.ColourAt(at));
  }
  EXPECT_EQ(picker.Result(), 0U);
  EXPECT_EQ(Find<QLineEdit>(picker, "red_value").text(), QStringLiteral("0"));
  EXPECT_EQ(palette.ColourAt(QPoint(0, 0)), 0xFFFFFFU);
  // Half way down the left edge stands red.
  EXPECT_GT(palette.ColourAt(QPoint(0, 95)) >> 16, 240U);
  EXPECT_LT(palette.ColourAt(QPoint(0, 95)) & 0xFFFFU, 0x1010U);
}

TEST_F(ShowColorsForm, OkKeepsAndCancelGivesUp) {
  QTest::mouseClick(&Find<QPushButton>(picker, "Command1"), Qt::LeftButton);
  EXPECT_EQ(picker.result(), QDialog::Accepted);
  ShowActive(picker);
  QTest::mouseClick(&Find<QPushButton>(picker, "Command2"), Qt::LeftButton);
  EXPECT_EQ(picker.result(), QDialog::Rejected);
}

TEST(Back01Form, OpensSlidesAndTakesNumbers) {
  const LanguageTexts texts = TextsOf('E');
  Back01 composer("1,2,3,4,5,6", texts);
  ShowActive(composer);
  EXPECT_EQ(composer.windowTitle(), QStringLiteral("Background"));
  EXPECT_EQ(Find<QSlider>(composer, "Blue2").value(), 6);
  Find<QSlider>(composer, "Red1").setValue(200);
  EXPECT_EQ(Find<QLineEdit>(composer, "Red1_crt").text(), QStringLiteral("200"));
  EXPECT_EQ(Find<GradientPicture>(composer, "g1").Ends(), (std::array{200, 2, 3, 4, 5, 6}));
  auto& box = Find<QLineEdit>(composer, "Green1_crt");
  TypeOver(box, QStringLiteral("300"));
  EXPECT_EQ(Find<QSlider>(composer, "Green1").value(), 2);
  QTest::keyClick(&box, Qt::Key_Return);
  EXPECT_TRUE(composer.isVisible());
  EXPECT_EQ(Find<QSlider>(composer, "Green1").value(), 255);
  EXPECT_EQ(box.text(), QStringLiteral("255"));
  TypeOver(Find<QLineEdit>(composer, "Red2_crt"), QStringLiteral("x"));
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  EXPECT_EQ(Find<QLineEdit>(composer, "Red2_crt").text(), QStringLiteral("0"));
  EXPECT_EQ(composer.Result(), (std::array{200, 255, 3, 0, 5, 6}));
  for (const ColourSlider& names : kBackSliders) {
    EXPECT_FALSE(Find<QSlider>(composer, std::string(names.Slider).c_str()).accessibleName().isEmpty());
    EXPECT_FALSE(Find<QLineEdit>(composer, std::string(names.Box).c_str()).accessibleName().isEmpty());
  }
  QTest::keyClick(&composer, Qt::Key_Escape);
  EXPECT_EQ(composer.result(), QDialog::Rejected);
}

TEST(Back01Form, PaintsTheRowsOfItsGradient) {
  const LanguageTexts texts = TextsOf('E');
  Back01 composer("255,0,0,0,0,255", texts);
  ShowActive(composer);
  auto& picture = Find<GradientPicture>(composer, "g1");
  const QImage shown = picture.grab().toImage();
  const std::vector<Rgb> rows = BuildBackGround(255, 0, 0, 0, 0, 255, picture.height());
  for (int y = 1; y + 1 < picture.height(); ++y)
    ASSERT_EQ(shown.pixel(picture.width() / 2, y) & 0xFFFFFFU, rows[static_cast<std::size_t>(y)]) << y;
}

TEST(ColourForms, HaveRoomForTheirWordsInEveryLanguage) {
  for (const char letter : {'E', 'S', 'I', 'P'}) {
    const LanguageTexts texts = TextsOf(letter);
    Back01 composer("255,200,0,0,40,255", texts);
    ShowColors picker(0x2060C0U, texts);
    for (QDialog* dialog : {static_cast<QDialog*>(&composer), static_cast<QDialog*>(&picker)}) {
      ShowActive(*dialog);
      ExpectRoomForWords(*dialog, letter);
      if (qEnvironmentVariableIsSet("KEV_PICTURES"))
        dialog->grab().save(qEnvironmentVariable("KEV_PICTURES") + QLatin1Char('/') + dialog->objectName() +
                            QLatin1Char(letter) + QStringLiteral(".png"));
    }
  }
}

}  // namespace
}  // namespace kev
