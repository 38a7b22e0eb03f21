// SPDX-License-Identifier: MIT
// The colours of the program's own style can be told apart: 4.5 to 1 for text, 3 to 1 for what shows where
// the focus is. What can't be used may be fainter.
#include <gtest/gtest.h>

#include <QApplication>
#include <QPalette>
#include <QRegularExpression>
#include <algorithm>
#include <cmath>

#include "platform/app_style.h"

namespace kev {
namespace {

constexpr double kText = 4.5;
constexpr double kFocus = 3;

double Linear(double channel) {
  return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double Luminance(const QColor& colour) {
  return 0.2126 * Linear(colour.redF()) + 0.7152 * Linear(colour.greenF()) + 0.0722 * Linear(colour.blueF());
}

double Contrast(const QColor& one, const QColor& other) {
  const auto [darker, lighter] = std::minmax({Luminance(one), Luminance(other)});
  return (lighter + 0.05) / (darker + 0.05);
}

class ContrastTest : public testing::Test {
 protected:
  // The application is the one of all tests: its look is put back.
  ContrastTest() : palette_(QApplication::palette()), sheet_(qApp->styleSheet()) { ApplyStyle(*qApp); }
  ~ContrastTest() override {
    QApplication::setPalette(palette_);
    qApp->setStyleSheet(sheet_);
  }

 private:
  QPalette palette_;
  QString sheet_;
};

TEST(Contrast, IsThatOfTheUsualFormula) {
  EXPECT_NEAR(Contrast(Qt::black, Qt::white), 21, 1e-6);
  EXPECT_NEAR(Contrast(QColor(0x76, 0x76, 0x76), Qt::white), 4.54, 0.01);
}

TEST_F(ContrastTest, TextsCanBeReadOnWhateverTheyStandOn) {
  using P = QPalette;
  const QPalette palette = QApplication::palette();
  for (const auto& [text, ground] :
       {std::pair(P::WindowText, P::Window), std::pair(P::Text, P::Base),
        std::pair(P::Text, P::AlternateBase), std::pair(P::ButtonText, P::Button),
        std::pair(P::ButtonText, P::Window), std::pair(P::PlaceholderText, P::Base),
        std::pair(P::PlaceholderText, P::Window), std::pair(P::HighlightedText, P::Highlight),
        std::pair(P::Link, P::Base), std::pair(P::Link, P::Window),
        std::pair(P::ToolTipText, P::ToolTipBase)})
    for (const QPalette::ColorGroup group : {P::Active, P::Inactive})
      EXPECT_GE(Contrast(palette.color(group, text), palette.color(group, ground)), kText)
          << text << " on " << ground;
}

TEST_F(ContrastTest, WhatShowsTheFocusCanBeTold) {
  const QPalette palette = QApplication::palette();
  for (const QPalette::ColorRole ground : {QPalette::Window, QPalette::Base, QPalette::Button})
    EXPECT_GE(Contrast(palette.color(QPalette::Highlight), palette.color(ground)), kFocus) << ground;
}

TEST_F(ContrastTest, RulesOfTheStyleSheetKeepIt) {
  static const QRegularExpression rule(QStringLiteral("([^{}]+)\\{([^}]*)\\}"));
  static const QRegularExpression ground(QStringLiteral("background:\\s*(#[0-9a-f]{6})"));
  static const QRegularExpression text(QStringLiteral("(?<![-\\w])color:\\s*(#[0-9a-f]{6})"));
  int rules = 0;
  for (auto found = rule.globalMatch(qApp->styleSheet()); found.hasNext();) {
    const QRegularExpressionMatch match = found.next();
    const QString name = match.captured(1).trimmed();
    if (name.contains(QStringLiteral(":disabled"))) continue;
    const auto onGround = ground.match(match.captured(2));
    const auto ofText = text.match(match.captured(2));
    if (!onGround.hasMatch() || name.contains(QStringLiteral("separator")) ||
        name.contains(QStringLiteral("progressbar")))
      continue;
    ++rules;
    const QColor colour =
        ofText.hasMatch() ? QColor(ofText.captured(1)) : QApplication::palette().color(QPalette::WindowText);
    EXPECT_GE(Contrast(colour, QColor(onGround.captured(1))), kText) << name.toStdString();
  }
  EXPECT_GE(rules, 5);
}

TEST_F(ContrastTest, ABarOfAnyColourGetsATextThatCanBeRead) {
  for (int red = 0; red <= 255; red += 51)
    for (int green = 0; green <= 255; green += 51)
      for (int blue = 0; blue <= 255; blue += 51) {
        const QColor colour(red, green, blue);
        EXPECT_GE(Contrast(TextColourOn(colour), colour), kText) << colour.name().toStdString();
      }
}

}  // namespace
}  // namespace kev
