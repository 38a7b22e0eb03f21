// SPDX-License-Identifier: MIT
#include "platform/forms/sub_section_propert.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QTest>
#include <memory>

#include "base/text_numbers.h"
#include "platform/print_qt.h"
#include "platform/text_bridge.h"
#include "support/scripted_host.h"
#include "surface/subsection_dialog.h"
#include "template/reader.h"

namespace kev {
namespace {

const std::vector<RecordType> kTypes = {{"CUSTOMER", 1, 2}, {"ITEMS", 4, 3}, {"REMARK", 1, 1}};

// A page of two sections with a subsection of its own in [DATA].
Document SamplePage() {
  const BuiltInMeasurer measurer;
  NoPictures pictures;
  return ReadTemplateBytes("[CONFIGURATION]\n[HEADER]\n[DATA]\n[TOTAL:@net]\n[FOOTER]\n",
                           {measurer, pictures})
      ->Read;
}

int RowOfTotal(const Document& document) {
  int row = 1;
  while (document.Objects[row].SectionName != "TOTAL")
    ++row;
  return row;
}

class SubSectionpropertTest : public testing::Test {
 protected:
  void Open(SubsectionDialog opened, char letter = 'E') {
    dialog = std::move(opened);
    texts = *LoadLanguage(KEV_PROGRAM_DIR "/Kev.lng", letter);
    form = std::make_unique<SubSectionpropert>(
        dialog, SubSectionpropert::Services{texts, *document.Page, host, [this] {
                                              ++accepts;
                                              return mayClose;
                                            }});
    form->show();
    form->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(form.get()));
  }
  void OpenNew(char letter = 'E') { Open(OpenNewSubsection(document, kTypes, "Field"), letter); }
  void OpenTotal() { Open(OpenSubsection(document, RowOfTotal(document), kTypes, "Field")); }

  template <typename Control>
  Control& Find(const char* name) {
    auto* control = form->findChild<Control*>(QString::fromLatin1(name));
    if (control == nullptr) throw std::runtime_error(std::string("no control ") + name);
    return *control;
  }
  QLineEdit& Name() { return Find<QLineEdit>("subsect_name"); }
  QLineEdit& StartEdit() { return Find<QLineEdit>("subsect_start"); }
  QPlainTextEdit& Fields() { return Find<QPlainTextEdit>("subsect_fields"); }
  QTableWidget& Types() { return Find<QTableWidget>("Grid1"); }
  QComboBox& Section() { return Find<QComboBox>("combo_section"); }
  QListWidget& Entries() { return Find<QListWidget>("combo_subsect_name"); }
  QStringList EntryTexts() {
    QStringList entries;
    for (int i = 0; i < Entries().count(); ++i)
      entries << Entries().item(i)->text().trimmed();
    return entries;
  }

  Document document = SamplePage();
  SubsectionDialog dialog;
  LanguageTexts texts;
  test::ScriptedHost host;
  bool mayClose = true;
  int accepts = 0;
  std::unique_ptr<SubSectionpropert> form;
};

TEST_F(SubSectionpropertTest, TypingFillsTheDialog) {
  OpenNew();
  EXPECT_TRUE(Name().hasFocus());
  QTest::keyClicks(&Name(), QStringLiteral("Lines"));
  EXPECT_EQ(dialog.Name, "Lines");
  Fields().setFocus();
  QTest::keyClicks(&Fields(), QStringLiteral("@a,@b"));
  EXPECT_EQ(HeadOf(dialog), "[Lines:@a,@b]");
}

TEST_F(SubSectionpropertTest, SpaceTicksATypeAndShowsWhatItAdds) {
  OpenNew();
  Types().setFocus();
  QTest::keyClick(&Types(), Qt::Key_Down);
  QTest::keyClick(&Types(), Qt::Key_Space);
  EXPECT_TRUE(dialog.RecordTypes[1].Ticked);
  EXPECT_EQ(Name().text(), QStringLiteral("ITEMS"));
  EXPECT_EQ(Fields().toPlainText(), QStringLiteral("@Field01\n@Field02\n@Field03"));
  QTest::keyClick(&Types(), Qt::Key_Space);
  EXPECT_EQ(Fields().toPlainText(), QString());
}

TEST_F(SubSectionpropertTest, TabGoesThroughTheControlsInOrder) {
  OpenNew();
  Entries().setFocus();
  for (const char* name : {"combo_section", "subsect_name", "Grid1", "subsect_fields", "start_current",
                           "Command4", "Command5", "combo_subsect_name"}) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget()->objectName(), QString::fromLatin1(name));
  }
}

TEST_F(SubSectionpropertTest, ListShowsWhereTheNewOneWillStand) {
  OpenNew();
  EXPECT_EQ(EntryTexts(),
            QString::fromLatin1("[Configuration]|[Header]|[Data]|[TOTAL:@net]|Insert section|[Footer]")
                .split(QLatin1Char('|')));
  EXPECT_EQ(Entries().currentRow(), 4);
  Section().setFocus();
  QTest::keyClick(&Section(), Qt::Key_Down);
  EXPECT_EQ(dialog.Section, BaseSection::Footer);
  EXPECT_EQ(EntryTexts().last(), QStringLiteral("Insert section"));
}

TEST_F(SubSectionpropertTest, AnEntryOfTheListChoosesItsSection) {
  OpenNew();
  Entries().setCurrentRow(1);
  ASSERT_TRUE(QTest::qWaitFor([this] { return dialog.Section == BaseSection::Header; }));
  EXPECT_EQ(Section().currentText(), QStringLiteral("[Header]"));
  EXPECT_EQ(Entries().currentItem()->text().trimmed(), QStringLiteral("Insert section"));
}

TEST_F(SubSectionpropertTest, TheArrowKeysTakeTheNewOneFromSectionToSection) {
  OpenNew();
  Entries().setFocus();
  for (int n = 0; n < 3; ++n) {
    EXPECT_EQ(dialog.Section, BaseSection::Data);
    QTest::keyClick(&Entries(), Qt::Key_Up);
    QCoreApplication::processEvents();
  }
  EXPECT_EQ(dialog.Section, BaseSection::Header);
  EXPECT_EQ(Entries().currentRow(), 2);
  QTest::keyClick(&Entries(), Qt::Key_Down);
  QCoreApplication::processEvents();
  EXPECT_EQ(dialog.Section, BaseSection::Data);
}

TEST_F(SubSectionpropertTest, TheConfigurationCannotBeChosen) {
  OpenNew();
  EXPECT_EQ(Section().itemText(0), QStringLiteral("[Configuration]"));
  Section().setFocus();
  for (int n = 0; n < 4; ++n)
    QTest::keyClick(&Section(), Qt::Key_Up);
  EXPECT_EQ(dialog.Section, BaseSection::Header);
  EXPECT_FALSE(Entries().item(0)->flags().testFlag(Qt::ItemIsSelectable));
}

TEST_F(SubSectionpropertTest, AFixedStartIsTypedOnceTheCurrentPositionIsNotWanted) {
  OpenNew();
  EXPECT_FALSE(StartEdit().isEnabled());
  auto& current = Find<QCheckBox>("start_current");
  current.setFocus();
  QTest::keyClick(&current, Qt::Key_Space);
  EXPECT_FALSE(dialog.AtCurrentPosition);
  EXPECT_TRUE(StartEdit().hasFocus());
  QTest::keyClicks(&StartEdit(), QStringLiteral("1440"));
  EXPECT_EQ(StartOf(dialog), "1440");
}

TEST_F(SubSectionpropertTest, EnterAcceptsAndARefusalKeepsItOpen) {
  OpenNew();
  mayClose = false;
  QTest::keyClick(&Name(), Qt::Key_Return);
  EXPECT_EQ(accepts, 1);
  EXPECT_TRUE(form->isVisible());
  mayClose = true;
  QTest::mouseClick(&Find<QPushButton>("Command4"), Qt::LeftButton);
  EXPECT_EQ(accepts, 2);
  EXPECT_FALSE(form->isVisible());
  EXPECT_EQ(form->result(), QDialog::Accepted);
}

TEST_F(SubSectionpropertTest, EscapeGivesUp) {
  OpenNew();
  QTest::keyClick(&Name(), Qt::Key_Escape);
  EXPECT_EQ(accepts, 0);
  EXPECT_FALSE(form->isVisible());
  EXPECT_EQ(form->result(), QDialog::Rejected);
}

TEST_F(SubSectionpropertTest, ACharacterThatThePageDoesNotHoldIsRefused) {
  OpenNew();
  QTest::keyClicks(&Name(), QStringLiteral("A"));
  QKeyEvent cyrillic(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, QString(QChar(0x0416)));
  QCoreApplication::sendEvent(&Name(), &cyrillic);
  EXPECT_EQ(Name().text(), QStringLiteral("A"));
  EXPECT_EQ(dialog.Name, "A");
  ASSERT_EQ(host.Messages.size(), 1U);
  EXPECT_TRUE(host.Messages[0].Text.starts_with(texts.Text(kTextCharacterNotInPage)));
  EXPECT_EQ(host.Messages[0].Detail, "\xD0\x96");
  Fields().insertPlainText(QString(QChar(0x0416)));
  EXPECT_EQ(Fields().toPlainText(), QString());
  EXPECT_EQ(host.Messages.size(), 2U);
}

TEST_F(SubSectionpropertTest, AnExistingOneShowsItsValuesAndKeepsItsSection) {
  OpenTotal();
  EXPECT_EQ(form->windowTitle(), QStringLiteral("Subsection"));
  EXPECT_EQ(Name().text(), QStringLiteral("TOTAL"));
  EXPECT_EQ(Fields().toPlainText(), QStringLiteral("@net"));
  EXPECT_FALSE(Section().isEnabled());
  EXPECT_EQ(Section().currentText(), QStringLiteral("[Data]"));
  EXPECT_EQ(Entries().currentItem()->text().trimmed(), QStringLiteral("[TOTAL:@net]"));
  Entries().setCurrentRow(1);
  EXPECT_TRUE(QTest::qWaitFor([this] { return Entries().currentRow() == 3; }));
}

TEST_F(SubSectionpropertTest, ASectionHasTheShortForm) {
  int row = 1;
  while (document.Objects[row].SectionTitle != "[DATA]")
    ++row;
  Open(OpenSubsection(document, row, kTypes, "Field"));
  EXPECT_EQ(form->findChild<QLineEdit*>(QStringLiteral("subsect_name")), nullptr);
  EXPECT_EQ(form->findChild<QTableWidget*>(QStringLiteral("Grid1")), nullptr);
  EXPECT_EQ(Section().currentText(), QStringLiteral("[Data]"));
  EXPECT_TRUE(Find<QCheckBox>("start_current").hasFocus());
}

TEST_F(SubSectionpropertTest, WithoutRecordTypesSaysWhy) {
  Open(OpenNewSubsection(document, {}, "Field"));
  EXPECT_FALSE(Types().isVisible());
  EXPECT_EQ(Find<QLabel>("norecordtypes").text(), ToQString(texts.Text(kTextSubsectionNoRecordTypes)));
  EXPECT_TRUE(Find<QLabel>("norecordtypes").isVisible());
}

TEST_F(SubSectionpropertTest, EachControlHasANameAndEachCaptionALetterOfItsOwnInEveryLanguage) {
  for (const char letter : {'E', 'S', 'I', 'P'}) {
    OpenNew(letter);
    for (const char* name : {"combo_subsect_name", "combo_section", "subsect_name", "Grid1", "subsect_fields",
                             "subsect_start", "start_current", "Command4", "Command5"})
      EXPECT_FALSE(Find<QWidget>(name).accessibleName().isEmpty()) << name;
    QString letters;
    for (const QLabel* caption : form->findChildren<QLabel*>()) {
      if (caption->buddy() == nullptr) continue;
      const qsizetype mark = caption->text().indexOf(QLatin1Char('&'));
      ASSERT_GE(mark, 0) << caption->text().toStdString();
      const QChar marked = caption->text().at(mark + 1).toUpper();
      EXPECT_FALSE(letters.contains(marked)) << letter << caption->text().toStdString();
      letters += marked;
    }
    EXPECT_EQ(letters.size(), 6);
  }
}

}  // namespace
}  // namespace kev
