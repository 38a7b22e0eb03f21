// SPDX-License-Identifier: MIT
// The keys of the window are those that the documentation lists, and every command has a way that needs no
// mouse.
#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QContextMenuEvent>
#include <QMenu>
#include <QMenuBar>
#include <QShortcut>
#include <QTest>
#include <QToolButton>
#include <fstream>
#include <regex>
#include <set>

#include "app/commands.h"
#include "forms/form_walk.h"
#include "platform/page_canvas.h"
#include "surface/object_description.h"
#include "surface/selection.h"

namespace kev {
namespace {

std::set<std::string> DocumentedKeys() {
  std::ifstream doc(std::string(KEV_EXAMPLES_DIR) + "/../docs/keyboard.md");
  const std::regex row("^\\| `([^`]+)` \\|.*");
  std::set<std::string> keys;
  bool inTable = false;
  for (std::string line; std::getline(doc, line);) {
    if (line.starts_with("## ")) inTable = line == "## Keys of the window";
    std::smatch found;
    if (inTable && std::regex_match(line, found, row)) keys.insert(found[1]);
  }
  return keys;
}

class KeyboardTest : public testing::Test {
 protected:
  DesignSurface& Surface() { return walk.TheDesigner().Surface(); }
  PageCanvas& Page() { return *walk.Window().findChild<PageCanvas*>(); }
  int Current() { return walk.TheDesigner().OpenDocument().Objects.CurrentObject; }
  void FocusPage() {
    walk.Window().activateWindow();
    Page().clearFocus();
    Page().setFocus(Qt::TabFocusReason);
    ASSERT_TRUE(QTest::qWaitFor([this] { return Page().hasFocus(); }));
  }
  QMenu* OpenMenu() {
    QContextMenuEvent event(QContextMenuEvent::Keyboard, {5, 5}, Page().mapToGlobal(QPoint(5, 5)));
    QCoreApplication::sendEvent(&Page(), &event);
    if (!QTest::qWaitFor([] { return QApplication::activePopupWidget() != nullptr; })) return nullptr;
    return qobject_cast<QMenu*>(QApplication::activePopupWidget());
  }

  test::FormWalk walk{'E'};
};

TEST_F(KeyboardTest, TheDocumentationListsTheKeysOfTheWindowAndNoOthers) {
  std::set<std::string> keys;
  for (const QAction* action : walk.Window().findChildren<QAction*>())
    if (!action->shortcut().isEmpty()) keys.insert(action->shortcut().toString().toStdString());
  for (const QShortcut* shortcut : walk.Window().findChildren<QShortcut*>())
    keys.insert(shortcut->key().toString().toStdString());
  EXPECT_EQ(keys, DocumentedKeys());
}

TEST_F(KeyboardTest, EveryCommandStandsInTheMenuBarOrInAMenuThatAKeyOpens) {
  std::set<Command> reached;
  for (const CommandRow& row : CommandRows())
    if (row.menu != MenuId::None) reached.insert(row.id);
  for (const ContextMenu menu : {ContextMenu::Edit, ContextMenu::Object, ContextMenu::Group})
    for (const std::optional<Command>& row : ContextMenuRows(menu))
      if (row) reached.insert(*row);
  // The dialog of the columns does what these three do at the place of the pointer.
  for (const Command byDialog : {Command::InsertColumnHere, Command::RemoveColumn, Command::SetColumn})
    reached.insert(byDialog);
  for (const CommandRow& row : CommandRows())
    EXPECT_EQ(reached.count(row.id), 1U) << row.name;
}

TEST_F(KeyboardTest, TabVisitsTheObjectsInTheirOrderAndThenLeavesThePage) {
  PageWork work = Surface().Work();
  Deselect(work);
  std::vector<int> expected;
  for (const int row : ObjectsInReadingOrder(Surface().Work()))
    if (work.document.Objects[row].Kind != ObjectKind::EndOfSubsection) expected.push_back(row);
  FocusPage();
  for (const int row : expected) {
    QTest::keyClick(&Page(), Qt::Key_Tab);
    EXPECT_EQ(Current(), row);
  }
  QTest::keyClick(&Page(), Qt::Key_Tab);
  EXPECT_FALSE(Page().hasFocus());
  EXPECT_EQ(Current(), expected.back());
  FocusPage();
  QTest::keyClick(&Page(), Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(Current(), expected[expected.size() - 2]);
}

TEST_F(KeyboardTest, TheMenuKeyOpensTheMenuOfWhatIsSelected) {
  FocusPage();
  PageWork work = Surface().Work();
  int label = 0;
  for (const int row : ObjectsInReadingOrder(work))
    if (work.document.Objects[row].Content == "@name") label = row;
  Deselect(work);
  for (const auto& [select, name] : std::initializer_list<std::pair<std::function<void()>, const char*>>{
           {[] {}, "pastehere"},
           {[&] { Surface().PickObject(label); }, "deleteobject"},
           {[&] { walk.Window().Run(Command::SelectAll); }, "alignhor"}}) {
    select();
    QMenu* menu = OpenMenu();
    ASSERT_NE(menu, nullptr) << name;
    const QList<QAction*> actions = menu->actions();
    EXPECT_TRUE(std::any_of(actions.begin(), actions.end(), [&](const QAction* action) {
      return action->objectName() == QString::fromLatin1(name);
    })) << name;
    menu->close();
  }
}

TEST_F(KeyboardTest, F6GoesThroughThePartsOfTheWindow) {
  walk.Window().ShowPanel(1);
  walk.Window().Run(Command::ShowFindings);
  QCoreApplication::processEvents();
  FocusPage();
  const QWidget* first = QApplication::focusWidget();
  std::set<const QWidget*> seen;
  for (int press = 0; press < 12; ++press) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_F6);
    seen.insert(QApplication::focusWidget());
    if (QApplication::focusWidget() == first) break;
  }
  EXPECT_EQ(seen.count(first), 1U);
  EXPECT_GE(seen.size(), 4U);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_F6, Qt::ShiftModifier);
  EXPECT_NE(QApplication::focusWidget(), first);
}

TEST_F(KeyboardTest, AnOpenMenuKeepsTheKeyboard) {
  FocusPage();
  const QWidget* before = QApplication::focusWidget();
  QMenu menu;
  menu.addAction(QStringLiteral("Entry"));
  menu.popup(QPoint(10, 10));
  ASSERT_EQ(QApplication::activePopupWidget(), &menu);
  QTest::keyClick(&walk.Window(), Qt::Key_F6);
  EXPECT_TRUE(menu.isVisible());
  menu.close();
  EXPECT_EQ(QApplication::focusWidget(), before);
}

TEST_F(KeyboardTest, ThePageShowsThatTheKeyboardIsOnItAndNotThatThePointerIs) {
  const auto edges = [this] {
    const auto found = Page().findChildren<QWidget*>(QStringLiteral("focusedge"));
    return found.size() == 4 && found.constFirst()->isVisible();
  };
  FocusPage();
  EXPECT_TRUE(edges());
  Page().clearFocus();
  EXPECT_FALSE(edges());
  Page().setFocus(Qt::MouseFocusReason);
  EXPECT_FALSE(edges());
}

TEST_F(KeyboardTest, WhatIsInsertedFromTheMenuGoesWhereTheKeyboardIs) {
  const PageWork work = Surface().Work();
  int bar = 0;
  for (const int row : ObjectsInReadingOrder(work))
    if (work.document.Objects[row].SectionName == "[DATA]" ||
        work.document.Objects[row].SectionTitle == "[DATA]")
      bar = bar == 0 ? row : bar;
  ASSERT_NE(bar, 0);
  Surface().PickObject(bar);
  walk.Window().Run(Command::InsertLabel);
  const ObjectTable& objects = walk.TheDesigner().OpenDocument().Objects;
  EXPECT_EQ(objects[Current()].Kind, ObjectKind::Label);
  EXPECT_GE(objects[Current()].AbsoluteY, objects[bar].AbsoluteY + 400);
}

}  // namespace
}  // namespace kev
