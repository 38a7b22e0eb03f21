// SPDX-License-Identifier: MIT
#include "platform/forms/prop_grid.h"

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QFileDialog>
#include <QFontDialog>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QScrollBar>
#include <QShortcut>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>

#include "platform/forms/prop_grid_editors.h"
#include "platform/forms/prop_grid_model.h"

namespace kev {
namespace {

PropertyRow Row(const std::string& caption, EditorKind editor, const std::string& value,
                const std::string& tail = {}) {
  PropertyRow row;
  row.Caption = caption;
  row.Editor = editor;
  row.Value = value;
  row.Tail = tail;
  if (editor == EditorKind::ClosedList || editor == EditorKind::OpenList) row.Items = ListItems(tail);
  return row;
}

// One row for each editor.
enum Rows { kText = 1, kClosed, kOpen, kNumber, kColour, kFont, kFile, kButton, kOff };

std::vector<PropertyRow> AllRows() {
  std::vector<PropertyRow> rows = {Row("Expression", EditorKind::Text, "Total"),
                                   Row("Alignment", EditorKind::ClosedList, "Left", "|Left|Right|Center"),
                                   Row("X/Column", EditorKind::OpenList, "100", "|$A|$B|"),
                                   Row("Height", EditorKind::Number, "600", "|1|5000|10|"),
                                   Row("Color", EditorKind::Colour, "255,128,0"),
                                   Row("Font", EditorKind::Font, "Arial|10|1|0", "|"),
                                   Row("File", EditorKind::File, "a.png", "|Image file!*.bmp;*.png|"),
                                   Row("Custom", EditorKind::Button, ""),
                                   Row("Mode", EditorKind::ClosedList, "Once", "|Once|Always|")};
  rows[kOff - 1].Enabled = false;
  return rows;
}

class PropGridTest : public testing::Test {
 protected:
  PropGridTest() {
    auto* layout = new QVBoxLayout(&window_);
    layout->addWidget(&grid_);
    layout->addWidget(&other_);
    window_.resize(300, 400);
    window_.show();
    window_.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window_));
    Show(AllRows());
    grid_.setFocus();
  }
  void Show(const std::vector<PropertyRow>& rows) { grid_.Show(rows, CodePage::Default()); }

  PropGridModel& Model() { return *static_cast<PropGridModel*>(grid_.model()); }
  QModelIndex Cell(int row) { return Model().index(row - 1, PropGridModel::kValue); }
  QWidget* Editor(int row) { return grid_.indexWidget(Cell(row)); }
  template <typename Kind>
  Kind& EditorAs(int row) {
    auto* editor = qobject_cast<Kind*>(Editor(row));
    if (editor == nullptr) throw std::runtime_error("no such editor");
    return *editor;
  }
  std::string Value(int row) { return grid_.Values()[static_cast<std::size_t>(row - 1)]; }

  // The key goes where the keyboard is.
  static void Key(Qt::Key key, Qt::KeyboardModifiers with = Qt::NoModifier) {
    QTest::keyClick(QApplication::focusWidget(), key, with);
    QCoreApplication::processEvents();
  }
  static void Type(const char* text) {
    for (const char c : std::string_view(text))
      QTest::keyClick(QApplication::focusWidget(), c);
    QCoreApplication::processEvents();
  }
  void Go(int row) {
    // A chooser leaves no window active where there is no window manager.
    window_.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window_));
    grid_.setFocus();
    grid_.SetCurrentRow(row);
  }
  void OpenByKey(int row) {
    Go(row);
    Key(Qt::Key_Return);
  }
  void Press(int row, int column) {
    const QRect place = grid_.visualRect(Model().index(row - 1, column));
    QTest::mouseClick(grid_.viewport(), Qt::LeftButton, Qt::NoModifier, place.center());
    QCoreApplication::processEvents();
  }
  void ExpectEdits(const std::vector<int>& rows) {
    ASSERT_EQ(edited_.size(), static_cast<qsizetype>(rows.size()));
    for (const int row : rows)
      EXPECT_EQ(edited_.takeFirst().at(0).toInt(), row);
  }

  QWidget window_;
  PropGrid grid_;
  QLineEdit other_;
  QSignalSpy edited_{&grid_, &PropGrid::Edited};
  QSignalSpy refused_{&grid_, &PropGrid::Refused};
  QSignalSpy pressed_{&grid_, &PropGrid::ButtonPressed};
};

// --- Rows
// --------------------------------------------------------------------------------------------------------

TEST_F(PropGridTest, ArrowsWalkTheRowsAndTellEachOnce) {
  const QSignalSpy told(&grid_, &PropGrid::RowChanged);
  grid_.SetCurrentRow(kText);
  Key(Qt::Key_Down);
  Key(Qt::Key_Down);
  EXPECT_EQ(grid_.CurrentRow(), kOpen);
  Key(Qt::Key_Up);
  EXPECT_EQ(grid_.CurrentRow(), kClosed);
  Key(Qt::Key_Left);
  Key(Qt::Key_Right);
  EXPECT_EQ(grid_.CurrentRow(), kClosed);
  EXPECT_EQ(told.size(), 3);
  EXPECT_EQ(told.last().at(0).toInt(), kClosed);
  EXPECT_EQ(edited_.size(), 0);
}

TEST_F(PropGridTest, TheFirstFocusGoesToTheFirstRow) {
  EXPECT_EQ(grid_.CurrentRow(), kText);
}

TEST_F(PropGridTest, TheCurrentRowStaysWhileTheCaptionsDo) {
  grid_.SetCurrentRow(kNumber);
  std::vector<PropertyRow> rows = AllRows();
  rows[0].Value = "Other";
  Show(rows);
  EXPECT_EQ(grid_.CurrentRow(), kNumber);
  EXPECT_EQ(Value(kText), "Other");
}

TEST_F(PropGridTest, OtherRowsKeepTheRowsNumberOrBeginAnew) {
  grid_.SetCurrentRow(kClosed);
  std::vector<PropertyRow> rows = {Row("A", EditorKind::Text, ""), Row("B", EditorKind::Text, "")};
  Show(rows);
  EXPECT_EQ(grid_.CurrentRow(), 2);
  rows.pop_back();
  Show(rows);
  EXPECT_EQ(grid_.CurrentRow(), 1);
  Show({});
  EXPECT_EQ(grid_.CurrentRow(), 0);
}

TEST_F(PropGridTest, CaptionsAreAsWideAsTheSheetsAskAndHaveTips) {
  EXPECT_EQ(grid_.columnWidth(PropGridModel::kCaption), 127);  // 1900 twips
  EXPECT_EQ(grid_.columnWidth(PropGridModel::kValue), grid_.viewport()->width() - 127);
  EXPECT_EQ(Model().index(0, 0).data(Qt::ToolTipRole).toString(), QStringLiteral("Expression"));
  EXPECT_EQ(Cell(kText).data(Qt::ToolTipRole).toString(), QStringLiteral("Total"));
}

TEST_F(PropGridTest, CaptionsStayInSightInANarrowGrid) {
  window_.resize(150, 120);
  QCoreApplication::processEvents();
  for (int row = 1; row <= kOff; ++row)
    grid_.SetCurrentRow(row);
  QCoreApplication::processEvents();
  EXPECT_EQ(grid_.columnViewportPosition(PropGridModel::kCaption), 0);
}

TEST_F(PropGridTest, ValuesEndWhereTheScrollBarBegins) {
  window_.resize(220, 120);
  QCoreApplication::processEvents();
  ASSERT_TRUE(grid_.verticalScrollBar()->isVisible());
  EXPECT_EQ(grid_.columnWidth(PropGridModel::kValue), grid_.viewport()->width() - 127);
}

TEST_F(PropGridTest, TheValueOfTheCurrentRowStandsOnThePlainGround) {
  grid_.SetCurrentRow(kText);
  const QImage shown = grid_.viewport()->grab().toImage();
  const QRect value = grid_.visualRect(Cell(kText));
  const qreal scale = shown.devicePixelRatio();
  const QPoint corner = (QPointF(value.right() - 3, value.center().y()) * scale).toPoint();
  EXPECT_GT(shown.pixelColor(corner).lightness(), 200);  // the frame of the current cell may tint it
}

TEST_F(PropGridTest, AButtonRowShowsItsButton) {
  const QImage shown = grid_.viewport()->grab().toImage();
  const QRect value = grid_.visualRect(Cell(kButton)).adjusted(2, 2, -2, -3);
  const QColor ground = grid_.palette().color(QPalette::Base);
  int painted = 0;
  for (int x = value.left(); x < value.right(); ++x)
    painted +=
        shown.pixelColor(QPointF(x, value.center().y()).toPoint() * shown.devicePixelRatio()) != ground;
  EXPECT_GT(painted, value.width() / 2);
}

TEST_F(PropGridTest, ACellIsReadOutWithItsCaption) {
  EXPECT_EQ(Cell(kText).data(Qt::AccessibleTextRole).toString(), QStringLiteral("Expression: Total"));
}

// --- Text
// --------------------------------------------------------------------------------------------------------

TEST_F(PropGridTest, EnterAndF2OpenACellWithItsTextSelected) {
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_F2}) {
    Go(kText);
    Key(key);
    EXPECT_EQ(EditorAs<QLineEdit>(kText).selectedText(), QStringLiteral("Total"));
    EXPECT_EQ(Editor(kText)->accessibleName(), QStringLiteral("Expression"));
    Key(Qt::Key_Escape);
    EXPECT_EQ(Editor(kText), nullptr);
  }
  EXPECT_EQ(edited_.size(), 0);
}

TEST_F(PropGridTest, EnterCommitsAndTheRowKeepsTheKeyboard) {
  OpenByKey(kText);
  Type("Sum");
  EXPECT_EQ(edited_.size(), 0);
  Key(Qt::Key_Return);
  ExpectEdits({kText});
  EXPECT_EQ(Value(kText), "Sum");
  EXPECT_EQ(Editor(kText), nullptr);
  EXPECT_TRUE(grid_.hasFocus());
  EXPECT_EQ(grid_.CurrentRow(), kText);
}

TEST_F(PropGridTest, EscPutsTheOldTextBack) {
  OpenByKey(kText);
  Type("Sum");
  Key(Qt::Key_Escape);
  EXPECT_EQ(edited_.size(), 0);
  EXPECT_EQ(Value(kText), "Total");
  EXPECT_TRUE(grid_.hasFocus());
}

TEST_F(PropGridTest, TypingOpensTheCellWithTheCharacter) {
  Go(kText);
  Type("Xy");
  EXPECT_EQ(EditorAs<QLineEdit>(kText).text(), QStringLiteral("Xy"));
  Key(Qt::Key_Return);
  EXPECT_EQ(Value(kText), "Xy");
}

TEST_F(PropGridTest, WhatTypingReplacedCanBeTakenBackInTheCell) {
  Go(kText);
  Type("X");
  Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(EditorAs<QLineEdit>(kText).text(), QStringLiteral("Total"));
  Key(Qt::Key_Y, Qt::ControlModifier);
  EXPECT_EQ(EditorAs<QLineEdit>(kText).text(), QStringLiteral("X"));
}

TEST_F(PropGridTest, ATextThatIsUnchangedIsNoEdit) {
  OpenByKey(kText);
  Type("Total");
  Key(Qt::Key_Return);
  EXPECT_EQ(edited_.size(), 0);
}

TEST_F(PropGridTest, LeavingTheCellCommitsAndTheKeyboardGoesWhereItWasSent) {
  for (const int row : {kText, kOpen, kNumber, kColour}) {
    OpenByKey(row);
    Type("7,7,7");
    QTest::mouseClick(&other_, Qt::LeftButton);
    other_.setFocus(Qt::MouseFocusReason);
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
    ExpectEdits({row});
    EXPECT_EQ(Value(row), "7,7,7") << row;
    EXPECT_TRUE(other_.hasFocus()) << row;
    EXPECT_EQ(Editor(row), nullptr) << row;
  }
}

TEST_F(PropGridTest, ArrowsLeaveAnOpenText) {
  OpenByKey(kText);
  Type("Sum");
  Key(Qt::Key_Down);
  ExpectEdits({kText});
  EXPECT_EQ(grid_.CurrentRow(), kClosed);
  EXPECT_TRUE(grid_.hasFocus());
}

TEST_F(PropGridTest, AnotherRowCommitsTheOpenOne) {
  OpenByKey(kText);
  Type("Sum");
  Press(kNumber, PropGridModel::kCaption);
  ExpectEdits({kText});
  EXPECT_EQ(grid_.CurrentRow(), kNumber);
  EXPECT_EQ(Editor(kText), nullptr);
}

TEST_F(PropGridTest, AnotherValueThatIsPressedOpensInItsPlace) {
  OpenByKey(kText);
  Type("Sum");
  Press(kNumber, PropGridModel::kValue);
  QCoreApplication::processEvents();
  ExpectEdits({kText});
  EXPECT_EQ(Editor(kText), nullptr);
  EXPECT_TRUE(EditorAs<ArrowEdit>(kNumber).hasFocus());
}

TEST_F(PropGridTest, ARowTakenByItsCaptionIsCommittedAsWell) {
  Press(kText, PropGridModel::kCaption);
  EXPECT_EQ(Editor(kText), nullptr);
  Type("Sum");
  grid_.CommitOpenCell();
  ExpectEdits({kText});
  EXPECT_EQ(Value(kText), "Sum");
  EXPECT_EQ(Editor(kText), nullptr);
}

TEST_F(PropGridTest, CommittingWithoutAnOpenCellTellsNothing) {
  grid_.CommitOpenCell();
  OpenByKey(kText);
  grid_.CommitOpenCell();
  EXPECT_EQ(edited_.size(), 0);
}

TEST_F(PropGridTest, ADiscardedCellTellsNothing) {
  OpenByKey(kText);
  Type("Sum");
  grid_.DiscardOpenCell();
  QCoreApplication::processEvents();
  EXPECT_EQ(edited_.size(), 0);
  EXPECT_EQ(Value(kText), "Total");
  EXPECT_EQ(Editor(kText), nullptr);
}

TEST_F(PropGridTest, ACharacterThatThePageLacksIsRefusedByName) {
  OpenByKey(kText);
  EditorAs<QLineEdit>(kText).setText(QStringLiteral("a\u03A9b"));
  Key(Qt::Key_Return);
  EXPECT_EQ(edited_.size(), 0);
  ASSERT_EQ(refused_.size(), 1);
  EXPECT_EQ(refused_.first().at(0).toString(), QStringLiteral("\u03A9"));
  EXPECT_EQ(Value(kText), "Total");
  EXPECT_EQ(Cell(kText).data().toString(), QStringLiteral("Total"));
}

TEST_F(PropGridTest, APastedTextOfSeveralLinesIsStoredAsOne) {
  for (const int row : {int{kText}, int{kOpen}}) {
    Go(row);
    QApplication::clipboard()->setText(QStringLiteral("Title\nOpen=<\r\n[DATA]"));
    Key(Qt::Key_V, Qt::ControlModifier);
    Key(Qt::Key_Return);
    EXPECT_EQ(Value(row), "Title Open=< [DATA]");
  }
}

TEST_F(PropGridTest, ACaptionThatIsTooLongTakesASecondLine) {
  std::vector<PropertyRow> rows = AllRows();
  rows[kNumber - 1].Caption = "Calculate height at runtime";
  Show(rows);
  EXPECT_GE(grid_.rowHeight(kNumber - 1), grid_.rowHeight(kText - 1) + grid_.fontMetrics().height());
  EXPECT_EQ(grid_.rowHeight(kOpen - 1), grid_.rowHeight(kText - 1));
  Show(AllRows());
  EXPECT_EQ(grid_.rowHeight(kNumber - 1), grid_.rowHeight(kText - 1));
}

TEST_F(PropGridTest, TextOfACharacterSetIsReadAndTypedInItsOwnPage) {
  std::vector<PropertyRow> rows = AllRows();
  rows[kText - 1].CharSet = "204";
  rows[kText - 1].Value = "\xC4\xE0";
  Show(rows);
  EXPECT_EQ(Cell(kText).data().toString(), QStringLiteral("\u0414\u0430"));
  OpenByKey(kText);
  EditorAs<QLineEdit>(kText).setText(QStringLiteral("\u0414\u043D\u0438"));
  Key(Qt::Key_Return);
  EXPECT_EQ(Value(kText), "\xC4\xED\xE8");
  EXPECT_EQ(refused_.size(), 0);
  OpenByKey(kText);
  EditorAs<QLineEdit>(kText).setText(QStringLiteral("\u00E9"));
  Key(Qt::Key_Return);
  EXPECT_EQ(refused_.size(), 1);
}

TEST_F(PropGridTest, WhatIsBeingTypedStaysWhenTheSameRowsAreShownAgain) {
  OpenByKey(kText);
  Type("Sum");
  std::vector<PropertyRow> rows = AllRows();
  rows[kNumber - 1].Value = "700";
  Show(rows);
  EXPECT_EQ(EditorAs<QLineEdit>(kText).text(), QStringLiteral("Sum"));
  EXPECT_EQ(Value(kNumber), "700");
}

TEST_F(PropGridTest, ARefusedTextIsPutBackByTheRowsShownAnew) {
  QObject::connect(&grid_, &PropGrid::Edited, &grid_, [this] { Show(AllRows()); });
  OpenByKey(kText);
  Type("Sum");
  Key(Qt::Key_Return);
  EXPECT_EQ(Value(kText), "Total");
  EXPECT_EQ(Cell(kText).data().toString(), QStringLiteral("Total"));
  EXPECT_TRUE(grid_.hasFocus());
}

TEST_F(PropGridTest, AnEditMayBringOtherRows) {
  QObject::connect(&grid_, &PropGrid::Edited, &grid_,
                   [this] { Show({Row("Report_title", EditorKind::Text, "No title")}); });
  OpenByKey(kText);
  Type("Sum");
  Key(Qt::Key_Return);
  EXPECT_EQ(Value(1), "No title");
  EXPECT_EQ(Editor(1), nullptr);
  EXPECT_TRUE(grid_.hasFocus());
  Key(Qt::Key_Return);
  EXPECT_EQ(EditorAs<QLineEdit>(1).text(), QStringLiteral("No title"));
}

// --- Clipboard, keys of menus
// ------------------------------------------------------------------------------------

TEST_F(PropGridTest, CopyCutAndPasteActOnTheRowsText) {
  Go(kText);
  Key(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("Total"));
  EXPECT_EQ(Editor(kText), nullptr);
  Go(kOpen);
  Key(Qt::Key_V, Qt::ControlModifier);
  Key(Qt::Key_Return);
  ExpectEdits({kOpen});
  EXPECT_EQ(Value(kOpen), "Total");
  Key(Qt::Key_X, Qt::ControlModifier);
  Key(Qt::Key_Return);
  ExpectEdits({kOpen});
  EXPECT_EQ(Value(kOpen), "");
  EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("Total"));
}

TEST_F(PropGridTest, CutAndPasteLeaveAClosedList) {
  QApplication::clipboard()->setText(QStringLiteral("Middle"));
  Go(kClosed);
  Key(Qt::Key_V, Qt::ControlModifier);
  Key(Qt::Key_Return);
  Key(Qt::Key_X, Qt::ControlModifier);
  Key(Qt::Key_Return);
  EXPECT_EQ(edited_.size(), 0);
  EXPECT_EQ(Value(kClosed), "Left");
}

// The window's own shortcuts stand for the menus.
TEST_F(PropGridTest, KeysOfTheMenusThatTheGridUsesStayInIt) {
  int taken = 0;
  for (const char* key : {"Del", "Ctrl+C", "Ctrl+X", "Ctrl+V", "F4", "Ctrl+Y"}) {
    auto* menu = new QShortcut(QKeySequence(QString::fromLatin1(key)), &window_);
    QObject::connect(menu, &QShortcut::activated, &window_, [&taken] { ++taken; });
  }
  Go(kText);
  Key(Qt::Key_Delete);
  EXPECT_EQ(EditorAs<QLineEdit>(kText).text(), QString());
  Key(Qt::Key_C, Qt::ControlModifier);
  Key(Qt::Key_Y, Qt::ControlModifier);
  Key(Qt::Key_Escape);
  Key(Qt::Key_C, Qt::ControlModifier);
  Key(Qt::Key_F4);
  Key(Qt::Key_Escape);
  Go(kClosed);
  Key(Qt::Key_Return);
  Key(Qt::Key_Delete);
  EXPECT_EQ(taken, 0);
  Key(Qt::Key_Escape);
  Key(Qt::Key_Y, Qt::ControlModifier);
  EXPECT_EQ(taken, 1);  // no text is being typed
}

TEST_F(PropGridTest, FocusOfTheGridAndOfItsCellsIsTold) {
  const QSignalSpy told(&grid_, &PropGrid::FocusChanged);
  OpenByKey(kText);
  EXPECT_EQ(told.size(), 0);
  other_.setFocus();
  QCoreApplication::processEvents();
  ASSERT_EQ(told.size(), 1);
  EXPECT_FALSE(told.last().at(0).toBool());
  grid_.setFocus();
  ASSERT_EQ(told.size(), 2);
  EXPECT_TRUE(told.last().at(0).toBool());
}

// --- Lists
// -------------------------------------------------------------------------------------------------------

TEST_F(PropGridTest, ArrowsWalkAClosedListAndEnterPicks) {
  OpenByKey(kClosed);
  Key(Qt::Key_Down);
  Key(Qt::Key_Down);
  EXPECT_EQ(EditorAs<QComboBox>(kClosed).currentText(), QStringLiteral("Center"));
  EXPECT_EQ(edited_.size(), 0);
  Key(Qt::Key_Return);
  ExpectEdits({kClosed});
  EXPECT_EQ(Value(kClosed), "Center");
  EXPECT_TRUE(grid_.hasFocus());
}

TEST_F(PropGridTest, EscLeavesAWalkedListAsItWas) {
  OpenByKey(kClosed);
  Key(Qt::Key_Down);
  Key(Qt::Key_Escape);
  EXPECT_EQ(edited_.size(), 0);
  EXPECT_EQ(Value(kClosed), "Left");
}

TEST_F(PropGridTest, AClosedListKeepsAValueThatIsNoItem) {
  std::vector<PropertyRow> rows = AllRows();
  rows[kClosed - 1].Value = "UCC EAN 128";
  Show(rows);
  EXPECT_EQ(Cell(kClosed).data().toString(), QStringLiteral("UCC EAN 128"));
  OpenByKey(kClosed);
  auto& list = EditorAs<QComboBox>(kClosed);
  EXPECT_EQ(list.currentIndex(), -1);
  EXPECT_EQ(list.placeholderText(), QStringLiteral("UCC EAN 128"));
  EXPECT_EQ(list.count(), 3);
  Key(Qt::Key_Return);
  OpenByKey(kClosed);
  other_.setFocus();
  QCoreApplication::processEvents();
  EXPECT_EQ(edited_.size(), 0);
  EXPECT_EQ(Value(kClosed), "UCC EAN 128");
  OpenByKey(kClosed);
  Key(Qt::Key_Down);
  Key(Qt::Key_Return);
  EXPECT_EQ(Value(kClosed), "Left");
}

TEST_F(PropGridTest, TypingGoesToTheItemThatBeginsSo) {
  Go(kClosed);
  Type("c");
  EXPECT_EQ(EditorAs<QComboBox>(kClosed).currentText(), QStringLiteral("Center"));
  EXPECT_EQ(edited_.size(), 0);
  Key(Qt::Key_Return);
  EXPECT_EQ(Value(kClosed), "Center");
}

TEST_F(PropGridTest, APressDropsAListDownAndAClickPicks) {
  const QRect place = grid_.visualRect(Cell(kClosed));
  QTest::mousePress(grid_.viewport(), Qt::LeftButton, Qt::NoModifier, place.center());
  auto& list = EditorAs<QComboBox>(kClosed);
  ASSERT_TRUE(list.view()->isVisible());
  QWidget* items = list.view()->viewport();
  const QPoint second = list.view()->visualRect(list.model()->index(1, 0)).center();
  // The release that belongs to the press picks nothing.
  QTest::mouseRelease(items, Qt::LeftButton, Qt::NoModifier, second);
  EXPECT_TRUE(list.view()->isVisible());
  EXPECT_EQ(edited_.size(), 0);
  QTest::qWait(QApplication::doubleClickInterval() + 50);
  QTest::mouseMove(items, second);
  QTest::mouseClick(items, Qt::LeftButton, Qt::NoModifier, second);
  QCoreApplication::processEvents();
  ExpectEdits({kClosed});
  EXPECT_EQ(Value(kClosed), "Right");
  EXPECT_EQ(Editor(kClosed), nullptr);
  EXPECT_TRUE(grid_.hasFocus());
}

TEST_F(PropGridTest, AnOpenListTakesAnyText) {
  OpenByKey(kOpen);
  auto& list = EditorAs<QComboBox>(kOpen);
  EXPECT_EQ(list.currentText(), QStringLiteral("100"));
  EXPECT_EQ(list.count(), 2);
  EXPECT_EQ(list.lineEdit()->selectedText(), QStringLiteral("100"));
  Type("$B + 5");
  Key(Qt::Key_Return);
  ExpectEdits({kOpen});
  EXPECT_EQ(Value(kOpen), "$B + 5");
  EXPECT_TRUE(grid_.hasFocus());
}

TEST_F(PropGridTest, AnItemTypedInFullIsOneEdit) {
  OpenByKey(kOpen);
  Type("$A");
  Key(Qt::Key_Return);
  ExpectEdits({kOpen});
  EXPECT_EQ(Value(kOpen), "$A");
}

TEST_F(PropGridTest, AListWithoutItemsCanBeTypedIn) {
  std::vector<PropertyRow> rows = AllRows();
  rows[kOpen - 1].Items.clear();
  Show(rows);
  OpenByKey(kOpen);
  EXPECT_EQ(EditorAs<QComboBox>(kOpen).count(), 0);
  Type("250");
  Key(Qt::Key_Return);
  EXPECT_EQ(Value(kOpen), "250");
}

TEST_F(PropGridTest, TheWheelDoesNotWalkAList) {
  OpenByKey(kClosed);
  QWidget& list = *Editor(kClosed);
  QWheelEvent wheel(QPointF(5, 5), list.mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton,
                    Qt::NoModifier, Qt::NoScrollPhase, false);
  QCoreApplication::sendEvent(&list, &wheel);
  EXPECT_EQ(EditorAs<QComboBox>(kClosed).currentText(), QStringLiteral("Left"));
}

// --- Numbers
// -----------------------------------------------------------------------------------------------------

TEST_F(PropGridTest, ArrowsStepANumberWithinItsBounds) {
  OpenByKey(kNumber);
  Key(Qt::Key_Up);
  EXPECT_EQ(EditorAs<ArrowEdit>(kNumber).Text(), QStringLiteral("610"));
  Key(Qt::Key_Down);
  Key(Qt::Key_Down);
  EXPECT_EQ(EditorAs<ArrowEdit>(kNumber).Text(), QStringLiteral("590"));
  EXPECT_EQ(edited_.size(), 0);
  Key(Qt::Key_Return);
  EXPECT_EQ(Value(kNumber), "590");
  for (const auto& [typed, key, wanted] :
       {std::tuple("4995", Qt::Key_Up, "5000"), std::tuple("3", Qt::Key_Down, "1"),
        std::tuple("-40", Qt::Key_Up, "1")}) {
    Go(kNumber);
    Type(typed);
    Key(key);
    Key(Qt::Key_Return);
    EXPECT_EQ(Value(kNumber), wanted);
  }
}

TEST_F(PropGridTest, ATypedNumberIsNotBounded) {
  for (const char* typed : {"9000", "-3", "abc", "12x"}) {
    OpenByKey(kNumber);
    Type(typed);
    Key(Qt::Key_Return);
    EXPECT_EQ(Value(kNumber), typed);
  }
  EXPECT_EQ(edited_.size(), 4);
}

TEST_F(PropGridTest, WithoutAStepTheArrowsStepByOne) {
  std::vector<PropertyRow> rows = AllRows();
  rows[kNumber - 1] = Row("Line width", EditorKind::Number, "10", "|1|10|");
  Show(rows);
  OpenByKey(kNumber);
  Key(Qt::Key_Up);
  EXPECT_EQ(EditorAs<ArrowEdit>(kNumber).Text(), QStringLiteral("10"));
  Key(Qt::Key_Down);
  EXPECT_EQ(EditorAs<ArrowEdit>(kNumber).Text(), QStringLiteral("9"));
}

// --- Choosers
// ----------------------------------------------------------------------------------------------------

// Runs `answer` on the dialog of this kind once it is open.
template <typename Dialog>
class DialogAnswer : public QObject {
 public:
  explicit DialogAnswer(std::function<void(Dialog&)> answer) {
    QObject::connect(&timer_, &QTimer::timeout, this, [this, answer = std::move(answer)] {
      auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
      if (dialog == nullptr) return;
      timer_.stop();
      ++seen;
      answer(*dialog);
    });
    timer_.start(5);
  }
  int seen = 0;

 private:
  QTimer timer_;
};

TEST_F(PropGridTest, AColourIsShownWithASwatch) {
  const auto icon = Cell(kColour).data(Qt::DecorationRole).value<QIcon>();
  const QImage swatch = icon.pixmap(12, 12).toImage();
  EXPECT_EQ(swatch.pixelColor(swatch.width() / 2, swatch.height() / 2), QColor(255, 128, 0));
  EXPECT_EQ(Cell(kColour).data().toString(), QStringLiteral("255,128,0"));
  EXPECT_FALSE(Cell(kText).data(Qt::DecorationRole).isValid());
}

TEST_F(PropGridTest, AColourCanBeTypedOrChosen) {
  OpenByKey(kColour);
  Type("1,2,3");
  Key(Qt::Key_Return);
  ExpectEdits({kColour});
  EXPECT_EQ(Value(kColour), "1,2,3");
  int asked = 0;
  grid_.SetColourChooser([&](const QColor& now) {
    EXPECT_EQ(now, QColor(1, 2, 3));
    ++asked;
    return QColor(10, 20, 30);
  });
  OpenByKey(kColour);
  QTest::mouseClick(Editor(kColour)->findChild<QToolButton*>(), Qt::LeftButton);
  QCoreApplication::processEvents();
  EXPECT_EQ(asked, 1);
  ExpectEdits({kColour});
  EXPECT_EQ(Value(kColour), "10,20,30");
  EXPECT_EQ(window_.focusWidget(), &grid_);
}

TEST_F(PropGridTest, AChooserThatIsGivenUpChangesNothing) {
  int asked = 0;
  grid_.SetColourChooser([&](const QColor&) {
    ++asked;
    return QColor();
  });
  for (const Qt::Key key : {Qt::Key_F4, Qt::Key_Down}) {
    OpenByKey(kColour);
    Key(key, key == Qt::Key_Down ? Qt::AltModifier : Qt::NoModifier);
  }
  EXPECT_EQ(asked, 2);
  EXPECT_EQ(edited_.size(), 0);
  EXPECT_EQ(Value(kColour), "255,128,0");
}

TEST_F(PropGridTest, AFontIsShownInWordsAndComesFromItsChooserAlone) {
  EXPECT_EQ(Cell(kFont).data().toString(), QStringLiteral("Arial, 10, bold"));
  OpenByKey(kFont);
  EXPECT_EQ(EditorAs<QLineEdit>(kFont).text(), QStringLiteral("Arial, 10, bold"));
  Type("zzz");
  Key(Qt::Key_Return);
  EXPECT_EQ(edited_.size(), 0);
  const DialogAnswer<QFontDialog> chosen([](QFontDialog& dialog) {
    EXPECT_EQ(dialog.currentFont().pointSize(), 10);
    QFont font(dialog.currentFont().family(), 14);
    font.setItalic(true);
    dialog.setCurrentFont(font);
    dialog.accept();
  });
  OpenByKey(kFont);
  Key(Qt::Key_Space);
  EXPECT_EQ(chosen.seen, 1);
  ExpectEdits({kFont});
  EXPECT_TRUE(QString::fromStdString(Value(kFont)).endsWith(QStringLiteral("|14|0|1"))) << Value(kFont);
}

TEST_F(PropGridTest, TheFileChooserBeginsInTheTemplatesFolderWithTheRowsPatterns) {
  grid_.SetFolder(QDir::tempPath());
  const DialogAnswer<QFileDialog> seen([](QFileDialog& dialog) {
    EXPECT_EQ(dialog.directory().absolutePath(), QDir(QDir::tempPath()).absolutePath());
    EXPECT_EQ(dialog.nameFilters().constFirst(), QStringLiteral("Image file (*.bmp *.BMP *.png *.PNG)"));
    dialog.reject();
  });
  OpenByKey(kFile);
  Key(Qt::Key_F4);
  EXPECT_EQ(seen.seen, 1);
  EXPECT_EQ(Value(kFile), "a.png");
  OpenByKey(kFile);
  Type("b.png");
  Key(Qt::Key_Return);
  EXPECT_EQ(Value(kFile), "b.png");
}

// --- Buttons, rows that are off, double clicks
// -------------------------------------------------------------------

TEST_F(PropGridTest, AButtonRowIsPressedByKeyAndPointer) {
  Go(kButton);
  Key(Qt::Key_Return);
  Key(Qt::Key_Space);
  Press(kButton, PropGridModel::kValue);
  ASSERT_EQ(pressed_.size(), 3);
  for (const auto& told : pressed_)
    EXPECT_EQ(told.at(0).toInt(), kButton);
  Type("x");
  EXPECT_EQ(pressed_.size(), 3);
  EXPECT_EQ(Editor(kButton), nullptr);
  EXPECT_EQ(edited_.size(), 0);
}

TEST_F(PropGridTest, ARowThatIsOffDoesNotOpen) {
  Press(kOff, PropGridModel::kValue);
  EXPECT_EQ(Editor(kOff), nullptr);
  Go(kButton);
  Key(Qt::Key_Down);
  EXPECT_EQ(grid_.CurrentRow(), kButton);
  grid_.SetCurrentRow(kOff);
  Key(Qt::Key_Return);
  Type("A");
  EXPECT_EQ(Editor(kOff), nullptr);
  std::vector<PropertyRow> rows = AllRows();
  rows[kOff - 1].Enabled = true;
  Show(rows);
  OpenByKey(kOff);
  EXPECT_NE(Editor(kOff), nullptr);
}

TEST_F(PropGridTest, ADoubleClickOnACaptionIsTold) {
  const QSignalSpy told(&grid_, &PropGrid::RowDoubleClicked);
  const QPoint at = grid_.visualRect(Model().index(kOpen - 1, PropGridModel::kCaption)).center();
  QTest::mouseDClick(grid_.viewport(), Qt::LeftButton, Qt::NoModifier, at);
  ASSERT_EQ(told.size(), 1);
  EXPECT_EQ(told.first().at(0).toInt(), kOpen);
}

}  // namespace
}  // namespace kev
